#include "GuiTestSupport.h"

#include "application/Application.h"
#include "rulebase/Rulebase.h"

#include <QDialog>
#include <QFile>
#include <QFileInfo>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTreeWidget>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class DocumentationWizard : public GuiSample
{
};

} // namespace

TEST_F(DocumentationWizard, OpensFromTheMainWindowAndHandsThePlanBack)
{
    whenModal(u"frmRulebaseDocCreator"_s, [](QDialog &wizard) {
        EXPECT_EQ(wizard.windowTitle(), u"Documentation Wizard"_s);
        auto *sections = child<QTreeWidget>(wizard, "lvwSections");
        auto *rules = child<QTreeWidget>(wizard, "lvwRules");
        auto *tables = child<QListWidget>(wizard, "lvwTables");
        ASSERT_TRUE(sections && rules && tables);
        EXPECT_EQ(sections->topLevelItemCount(), 17);
        EXPECT_GT(rules->topLevelItemCount(), 0);
        int checked = 0;
        for (int i = 0; i < tables->count(); ++i)
            checked += tables->item(i)->checkState() == Qt::Checked ? 1 : 0;
        EXPECT_EQ(checked, 6);
        EXPECT_EQ(sections->topLevelItem(0)->text(0), u"Naming"_s);
        EXPECT_FALSE(child<QPushButton>(wizard, "cmdMoveSectionUp")->isEnabled());
        click(wizard, "cmdMoveSectionDown");
        EXPECT_EQ(sections->topLevelItem(1)->text(0), u"Naming"_s);
        EXPECT_EQ(child<QLineEdit>(wizard, "txtTitle")->text(), u"Control Tags"_s);
        click(wizard, "cmdOK");
    });
    ui.answers.push_back(MessageResult::No); // not now
    trigger("tlGenerateDocumentation");

    EXPECT_EQ(ui.messageTexts(),
              QStringList{u"Do you wish to generate the Rulebase documentation?"_s});
    EXPECT_FALSE(QFile::exists(QFileInfo(file).absolutePath() + u"/Sample.html"_s));
    // The plan the dialog left is the rulebase's now, moved section and all.
    EXPECT_TRUE(app->rulebase()->Dirty());
    app->rulebase()->setDirty(false);
}
