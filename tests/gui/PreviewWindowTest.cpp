#include "application/Application.h"
#include "gui/frmMain.h"
#include "gui/preview/PreviewResultsModel.h"
#include "gui/preview/frmPreview.h"
#include "rulebase/NamingConvention.h"
#include "rulebase/Rulebase.h"
#include "rulebase/RulebaseManager.h"
#include "rulebase/UnauthorisedKeyword.h"
#include "rulebase/ViolationDefinition.h"

#include "GuiTestSupport.h"
#include "support/PreviewRules.h"
#include "support/TestEnvironment.h"

#include <QAbstractItemModelTester>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTreeView>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

// Private variables begin with "m" and a capital (5000), GoTo is forbidden (5001), and a
// convention on controls needs its condition (5002).
QString writeRulebase()
{
    Rulebase rulebase;
    const PreviewRules rules = addPreviewRules(rulebase, u"m"_s, u"Controls"_s, 6);
    rules.privates->setBodyActive(true);
    rules.privates->setBodyPattern(u"^[A-Z]"_s);
    rules.privates->setPrefixAdvice(u"Begin with m."_s);
    rules.privates->setBodyAdvice(u"Go on with a capital."_s);
    for (const std::shared_ptr<IRule> &rule : {std::shared_ptr<IRule>(rules.privates),
                                               std::shared_ptr<IRule>(rules.keyword),
                                               std::shared_ptr<IRule>(rules.conditional)}) {
        rule->ViolationDefinition()->setTitle(rule->Title());
        rule->ViolationDefinition()->setSeverity(3);
    }
    const QString path = TestEnvironment::makeTempDir() + u"/Preview.qrb"_s;
    EXPECT_TRUE(RulebaseManager().Save(rulebase, path));
    return path;
}

QStringList groups(const QAbstractItemModel &model)
{
    QStringList labels;
    for (int row = 0; row < model.rowCount(); ++row)
        labels << model.index(row, 0).data().toString();
    return labels;
}

} // namespace

using PreviewWindow = GuiSample;

// Tools > Preview on Project: the findings by rule and by file, a filter, the source of a
// finding, and a rule edited from its row, after which the results are those of the edit.
TEST_F(PreviewWindow, ShowsFindingsByRuleAndFileAndRefreshesAfterARuleIsEdited)
{
    ASSERT_TRUE(app->OpenRulebase(Application::OpenMode::CommandLine, writeRulebase()));
    ui.openAnswers = {TestEnvironment::sourceDir() + u"/tests/preview/data/Kinds/Kinds.vbp"_s};
    trigger("tlPreviewProject");
    auto *preview = window->findChild<frmPreview *>(u"frmPreview"_s);
    ASSERT_NE(preview, nullptr);
    EXPECT_TRUE(preview->isVisible());
    auto *findings = child<QTreeView>(*preview, "tvwFindings");
    QAbstractItemModel &model = *findings->model();
    QAbstractItemModelTester tester(&model,
                                    QAbstractItemModelTester::FailureReportingMode::Warning);
    auto *counts = child<QLabel>(*preview, "lblCounts");
    // Two references and two components the rulebase does not authorise, two names, GoTo.
    EXPECT_EQ(counts->text(), u"7 violations, 1 not previewed, 1 file not read"_s);
    EXPECT_EQ(groups(model),
              QStringList({"5000 Private variables (2)",
                           "5001 GoTo (1)",
                           "5002 Controls (1)",
                           "Unauthorised Reference (2)",
                           "Unauthorised Component (2)",
                           "Files that could not be read (1)"}));
    EXPECT_EQ(model.index(0, PreviewResultsModel::NameColumn, model.index(0, 0)).data().toString(),
              u"m_colItems"_s);

    child<QComboBox>(*preview, "cboGroupBy")->setCurrentIndex(1);
    EXPECT_EQ(groups(model),
              QStringList({"Kinds.vbp (5)", "modKinds.bas (3)", "modMissing.bas (1)"}));

    // The filter narrows the list and says how much it shows.
    child<QLineEdit>(*preview, "txtFilter")->setText(u"iindex"_s);
    EXPECT_EQ(groups(model), QStringList({"modKinds.bas (1)"}));
    EXPECT_TRUE(counts->text().endsWith("; 1 shown"_L1)) << counts->text().toStdString();

    // A double click on a finding shows its line among its neighbours.
    const QModelIndex found = model.index(0, 0, model.index(0, 0));
    emit findings->doubleClicked(found);
    auto *source = child<QPlainTextEdit>(*preview, "txtSource");
    EXPECT_TRUE(child<QLabel>(*preview, "lblSource")->text().endsWith("modKinds.bas:21"_L1));
    EXPECT_EQ(source->textCursor().selectedText(), u"    21  Dim iIndex"_s);
    EXPECT_TRUE(source->toPlainText().startsWith("    13  "_L1));

    // A rule's row opens its dialog; what is saved there is previewed at once.
    child<QLineEdit>(*preview, "txtFilter")->clear();
    child<QComboBox>(*preview, "cboGroupBy")->setCurrentIndex(0);
    whenModal(u"frmNamingConvention"_s, [](QDialog &dialog) {
        child<QLineEdit>(dialog, "txtTitle")->setText(u"Module variables"_s);
        click(dialog, "cmdOK");
    });
    emit findings->doubleClicked(model.index(0, 0));
    EXPECT_EQ(groups(model).value(0), u"5000 Module variables (2)"_s)
        << ui.messageTexts().join(QLatin1Char('\n')).toStdString();
    EXPECT_TRUE(app->rulebase()->Dirty());
}
