#include "application/Application.h"
#include "application/HelpTopics.h"
#include "collections/ObjectKeyedListAdapter.h"
#include "editors/AddFromProject.h"
#include "editors/AddFromProjectForm.h"
#include "editors/AuthorisedComponentForm.h"
#include "editors/AuthorisedReferenceForm.h"
#include "editors/CategoryEditorForm.h"
#include "editors/CategorySeverityForm.h"
#include "editors/ConventionFormBase.h"
#include "editors/DefaultViolationsForm.h"
#include "editors/IConventionForm.h"
#include "editors/IFormFactory.h"
#include "editors/RulebaseDocCreatorForm.h"
#include "editors/RulebasePropertiesForm.h"
#include "editors/SeverityEditorForm.h"
#include "editors/TagListForm.h"
#include "gui/dialogs/frmAddFromProject.h"
#include "gui/dialogs/frmAuthorisedComponent.h"
#include "gui/dialogs/frmAuthorisedReference.h"
#include "gui/dialogs/frmCategoryEditor.h"
#include "gui/dialogs/frmCategorySeverity.h"
#include "gui/dialogs/frmCodingConvention.h"
#include "gui/dialogs/frmDefaultViolations.h"
#include "gui/dialogs/frmNamingConvention.h"
#include "gui/dialogs/frmObjectProperty.h"
#include "gui/dialogs/frmParserEvent.h"
#include "gui/dialogs/frmPatternTest.h"
#include "gui/dialogs/frmRulebaseDocCreator.h"
#include "gui/dialogs/frmRulebaseProperties.h"
#include "gui/dialogs/frmSeverityEditor.h"
#include "gui/dialogs/frmTagList.h"
#include "gui/dialogs/frmUnauthorisedKeyword.h"
#include "gui/editor/frmRuleEditor.h"
#include "gui/frmMain.h"
#include "gui/window/frmAbout.h"
#include "gui/window/frmTip.h"
#include "rulebase/AuthorisedComponent.h"
#include "rulebase/AuthorisedReference.h"
#include "rulebase/CategoryList.h"
#include "rulebase/DefaultViolations.h"
#include "rulebase/IRule.h"
#include "rulebase/Rulebase.h"
#include "rulebase/SeverityItem.h"
#include "rulebase/ViolationDefinition.h"

#include "GuiTestSupport.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QDir>
#include <QFile>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSet>
#include <QTabWidget>

#include <gtest/gtest.h>

#include <functional>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

// The page a help request lands on, "" when it names none.
QString pageOf(const HelpRequest &request)
{
    return request.command == HelpCommand::Context ? HelpTopics::pageForContext(request.context)
                                                   : HelpTopics::pageForTopic(request.topic);
}

// Presses F1 as the user would: on the active window's focused control.
void pressF1(QDialog &dialog)
{
    dialog.show();
    QApplication::setActiveWindow(&dialog);
    QWidget *target = dialog.focusWidget() ? dialog.focusWidget() : &dialog;
    QKeyEvent press(QEvent::KeyPress, Qt::Key_F1, Qt::NoModifier);
    QApplication::sendEvent(target, &press);
    QKeyEvent release(QEvent::KeyRelease, Qt::Key_F1, Qt::NoModifier);
    QApplication::sendEvent(target, &release);
}

class DialogIntegration : public GuiSample
{
protected:
    void SetUp() override
    {
        GuiSample::SetUp();
        severityEditor.setSeverityItem(rulebase->SeverityList()->Item(1));
        severityEditor.Load();
        violations.setDefaultViolations(rulebase->DefaultViolations());
        violations.setCategoryList(rulebase->CategoryList());
        violations.setSeverityList(rulebase->SeverityList());
        violations.Load();
        properties.setRulebase(rulebase);
        properties.Load();
    }

    // Opens the first coding convention in its dialog from the factory and runs `act` on it.
    void openCodingConvention(std::function<void(QDialog &)> act)
    {
        const std::shared_ptr<IRule> rule
            = firstRule([](const IRule &r) { return r.RuleType() == RuleTypes::CodingConvention; });
        ASSERT_NE(rule, nullptr);
        std::unique_ptr<IConventionForm> form
            = IFormFactory::current().createConventionForm(RuleTypes::CodingConvention);
        ASSERT_NE(form, nullptr);
        form->setConvention(rule);
        form->setContext(app->ruleDialogContext());
        bool seen = false;
        whenModal(u"frmCodingConvention"_s, [&](QDialog &dialog) {
            seen = true;
            act(dialog);
            click(dialog, "cmdCancel");
        });
        form->Show();
        EXPECT_TRUE(seen);
        EXPECT_TRUE(form->Cancelled());
    }

    SeverityEditorForm severityEditor;
    DefaultViolationsForm violations;
    RulebasePropertiesForm properties;
};

} // namespace

TEST_F(DialogIntegration, DefaultViolationsInsertThePickedPropertyAtTheCaretOfTheAdvice)
{
    bool picked = false;
    bool seen = false;
    whenModal(u"frmDefaultViolations"_s, [&](QDialog &dialog) {
        seen = true;
        auto *button = child<QPushButton>(dialog, "cmdObjectProperty");
        ASSERT_NE(button, nullptr);
        EXPECT_TRUE(button->isEnabled());
        EXPECT_EQ(button->text(), u"Insert Object Property"_s);
        auto *advice = child<QPlainTextEdit>(dialog, "txtAdvice");
        advice->setPlainText(u"Use  instead."_s);
        QTextCursor cursor = advice->textCursor();
        cursor.setPosition(4);
        advice->setTextCursor(cursor);

        // The catalogue's picker for one property of any object.
        QString chosen;
        whenModal(u"frmObjectProperty"_s, [&](QDialog &picker) {
            picked = true;
            EXPECT_EQ(picker.windowTitle(), u"Object Property Selection"_s);
            auto *objects = child<QListWidget>(picker, "lvwObject");
            const auto reference = objects->findItems(u"Reference"_s, Qt::MatchExactly);
            ASSERT_EQ(reference.size(), 1);
            objects->setCurrentItem(reference.first());
            auto *properties = child<QListWidget>(picker, "lvwProperty");
            ASSERT_GT(properties->count(), 0);
            properties->setCurrentRow(0);
            chosen = u"%Reference."_s + properties->item(0)->text() + u"%"_s;
            click(picker, "cmdOK");
        });
        button->click();
        EXPECT_EQ(advice->toPlainText(), u"Use "_s + chosen + u" instead."_s);
        EXPECT_EQ(advice->textCursor().position(), 4 + chosen.size());

        // Cancelled, the picker inserts nothing.
        const QString before = advice->toPlainText();
        whenModal(u"frmObjectProperty"_s, [&](QDialog &picker) { click(picker, "cmdCancel"); });
        button->click();
        EXPECT_EQ(advice->toPlainText(), before);
        click(dialog, "cmdOK");
    });
    window->tool(u"tlDefaultViolations"_s)->trigger();
    EXPECT_TRUE(seen);
    EXPECT_TRUE(picked);
    EXPECT_TRUE(rulebase->DefaultViolations()->Item(1)->Advice().startsWith(u"Use %Reference."_s));
}

TEST_F(DialogIntegration, EveryDialogsHelpButtonAndF1OpenItsOwnPage)
{
    const auto category = rulebase->CategoryList()->Item(1);
    ASSERT_TRUE(category);

    CategorySeverityForm categories;
    categories.setDialogType(CategorySeverityForm::Categories);
    categories.setItemList(asKeyedList(rulebase->CategoryList()));
    categories.setRulebase(rulebase);
    categories.Load();
    CategorySeverityForm severities;
    severities.setDialogType(CategorySeverityForm::Severities);
    severities.setItemList(asKeyedList(rulebase->SeverityList()));
    severities.Load();
    CategoryEditorForm categoryEditor;
    categoryEditor.setCategoryItem(category);
    categoryEditor.Load();
    TagListForm tags;
    tags.Initialise(rulebase->ControlTags(), TagListForm::ControlTags);
    AddFromProject importer;
    AddFromProjectForm addFromProject(importer);
    AuthorisedComponentForm component(std::make_shared<AuthorisedComponent>());
    AuthorisedReferenceForm reference(std::make_shared<AuthorisedReference>());
    RulebaseDocCreatorForm docCreator;
    docCreator.setRulebase(rulebase);

    // Each dialog's own page; the pickers share one.
    const std::vector<std::pair<QString, std::function<std::unique_ptr<QDialog>()>>> cases = {
        {"frmAddFromProject", [&] { return std::make_unique<frmAddFromProject>(addFromProject); }},
        {"frmAuthorisedComponent",
         [&] { return std::make_unique<frmAuthorisedComponent>(component); }},
        {"frmAuthorisedReference",
         [&] { return std::make_unique<frmAuthorisedReference>(reference); }},
        {"frmCategoryEditor", [&] { return std::make_unique<frmCategoryEditor>(categoryEditor); }},
        {"frmCategorySeverity", [&] { return std::make_unique<frmCategorySeverity>(categories); }},
        {"frmCategorySeverity", [&] { return std::make_unique<frmCategorySeverity>(severities); }},
        {"frmCodingConvention", [] { return std::make_unique<frmCodingConvention>(); }},
        {"frmDefaultViolations",
         [&] { return std::make_unique<frmDefaultViolations>(violations); }},
        {"frmNamingConvention", [] { return std::make_unique<frmNamingConvention>(); }},
        {"frmObjectProperty", [] { return std::make_unique<frmObjectProperty>(); }},
        {"frmParserEvent", [] { return std::make_unique<frmParserEvent>(); }},
        {"frmPatternTest", [] { return std::make_unique<frmPatternTest>(); }},
        {"frmRulebaseProperties",
         [&] { return std::make_unique<frmRulebaseProperties>(properties); }},
        {"frmSeverityEditor", [&] { return std::make_unique<frmSeverityEditor>(severityEditor); }},
        {"frmTagList", [&] { return std::make_unique<frmTagList>(tags); }},
        {"frmUnauthorisedKeyword", [] { return std::make_unique<frmUnauthorisedKeyword>(); }},
        {"frmRulebaseDocCreator",
         [&] { return std::make_unique<frmRulebaseDocCreator>(docCreator); }},
        {"frmRuleEditor", [] { return std::make_unique<frmRuleEditor>(); }},
        {"frmAbout", [] { return std::make_unique<frmAbout>(); }},
        {"frmTip", [] { return std::make_unique<frmTip>(); }},
    };

    QSet<QString> covered, pages;
    for (const auto &[name, make] : cases) {
        SCOPED_TRACE(name.toStdString());
        covered << name;
        std::unique_ptr<QDialog> dialog = make();
        EXPECT_EQ(dialog->objectName(), name);
        ui.helpRequests.clear();
        pressF1(*dialog);
        ASSERT_EQ(ui.helpRequests.size(), 1u);
        const QString page = pageOf(ui.helpRequests.front());
        EXPECT_TRUE(QFile::exists(u":/help/"_s + page)) << page.toStdString();
        EXPECT_TRUE(!pages.contains(page) || page == "Pickers.htm"_L1) << page.toStdString();
        pages << page;

        // The about box and the tip have F1 only; the condition editor has its help tools.
        if (auto *help = dialog->findChild<QPushButton *>(u"cmdHelp"_s)) {
            ui.helpRequests.clear();
            help->click();
            ASSERT_EQ(ui.helpRequests.size(), 1u);
            EXPECT_EQ(pageOf(ui.helpRequests.front()), page);
        } else {
            EXPECT_TRUE(name == "frmAbout"_L1 || name == "frmTip"_L1 || name == "frmRuleEditor"_L1);
        }
        dialog->hide();
    }

    // The condition editor's second help tool explains the language.
    frmRuleEditor editor;
    ui.helpRequests.clear();
    editor.tool(u"tlLanguageHelp"_s)->trigger();
    ASSERT_EQ(ui.helpRequests.size(), 1u);
    EXPECT_EQ(pageOf(ui.helpRequests.front()), u"ConditionLanguage.htm"_s);
    EXPECT_TRUE(QFile::exists(u":/help/ConditionLanguage.htm"_s));

    // A dialog added later comes into this walk, or the walk fails.
    for (const char *folder : {"gui/dialogs", "gui/window", "gui/editor"}) {
        const QDir dir(QStringLiteral(QUORIN_SOURCE_DIR "/") + QLatin1String(folder));
        const QStringList headers = dir.entryList({u"frm*.h"_s}, QDir::Files);
        ASSERT_FALSE(headers.isEmpty()) << folder;
        for (QString header : headers) {
            header.chop(2);
            if (header != "frmConventionBase"_L1) {
                EXPECT_TRUE(covered.contains(header)) << header.toStdString();
            }
        }
    }
}

TEST_F(DialogIntegration, NumberBoxesRefuseANumberTheirValueCannotHold)
{
    struct Case
    {
        const char *box;
        NumberRange range;
        std::function<std::unique_ptr<QDialog>()> make;
    };
    const auto propertiesDialog
        = [&] { return std::make_unique<frmRulebaseProperties>(properties); };
    const auto namingDialog = [] {
        auto dialog = std::make_unique<frmNamingConvention>();
        child<QCheckBox>(*dialog, "chkBodyActive")->setChecked(true);
        return dialog;
    };
    const std::vector<Case> cases = {
        {"txtImpact",
         SeverityEditorForm::ImpactRange(),
         [&] { return std::make_unique<frmSeverityEditor>(severityEditor); }},
        {"txtImpact",
         DefaultViolationsForm::ImpactRange(),
         [&] { return std::make_unique<frmDefaultViolations>(violations); }},
        {"txtMajor", RulebasePropertiesForm::MajorRange(), propertiesDialog},
        {"txtMinor", RulebasePropertiesForm::MinorRange(), propertiesDialog},
        {"txtRevision", RulebasePropertiesForm::RevisionRange(), propertiesDialog},
        {"txtVImpact",
         ConventionFormBase::NumberFieldRange(),
         [] { return std::make_unique<frmCodingConvention>(); }},
        {"txtBody_1", ConventionFormBase::NumberFieldRange(), namingDialog},
        {"txtBody_2", ConventionFormBase::NumberFieldRange(), namingDialog},
    };
    for (const Case &c : cases) {
        const std::unique_ptr<QDialog> dialog = c.make();
        SCOPED_TRACE(dialog->objectName().toStdString() + " " + c.box);
        auto *box = child<QLineEdit>(*dialog, c.box);
        ASSERT_NE(box, nullptr);
        ASSERT_TRUE(box->isEnabled());
        // The largest value goes in whole; one more loses its last keystroke.
        const QString largest = QString::number(c.range.maximum);
        box->clear();
        typeKeys(box, largest);
        EXPECT_EQ(box->text(), largest);
        const QString beyond = QString::number(qint64(c.range.maximum) + 1);
        box->clear();
        typeKeys(box, beyond);
        EXPECT_EQ(box->text(), beyond.chopped(1));
        box->clear();
        typeKeys(box, u"1x2"_s);
        EXPECT_EQ(box->text(), u"12"_s);
    }
    EXPECT_TRUE(ui.messages.empty()) << ui.messageTexts().join(u", "_s).toStdString();
}

TEST_F(DialogIntegration, APickedPlaceholderGoesInAtTheCaretWhileTabStillSelectsAll)
{
    openCodingConvention([&](QDialog &dialog) {
        QApplication::setActiveWindow(&dialog); // focus comes and goes as on a desktop
        child<QTabWidget>(dialog, "tbsConvention")->setCurrentIndex(3);
        auto *advice = child<QPlainTextEdit>(dialog, "txtVAdvice");
        advice->setPlainText(u"Rename  now."_s);
        advice->setFocus(Qt::MouseFocusReason);
        QTextCursor cursor = advice->textCursor();
        cursor.setPosition(7);
        advice->setTextCursor(cursor);

        QString placeholder;
        for (int i = 0; i < 2; ++i) {
            whenModal(u"frmObjectProperty"_s, [&](QDialog &picker) {
                auto *properties = child<QListWidget>(picker, "lvwProperty");
                ASSERT_GT(properties->count(), 0);
                properties->setCurrentRow(0);
                click(picker, "cmdOK");
            });
            click(dialog, "cmdObjectProperty_1");
            // The dialog is active again once the picker has gone, and its field has focus back.
            QApplication::setActiveWindow(&dialog);
            QApplication::processEvents();
            if (i == 0)
                placeholder = advice->toPlainText().mid(7, advice->toPlainText().size() - 12);
        }
        ASSERT_TRUE(placeholder.startsWith(QLatin1Char('%'))) << placeholder.toStdString();
        EXPECT_EQ(advice->toPlainText(), u"Rename "_s + placeholder + placeholder + u" now."_s);
        EXPECT_FALSE(advice->textCursor().hasSelection());

        auto *title = child<QLineEdit>(dialog, "txtVTitle");
        ASSERT_FALSE(title->text().isEmpty());
        title->setFocus(Qt::TabFocusReason);
        QApplication::processEvents();
        EXPECT_EQ(title->selectedText(), title->text());
    });
}

TEST_F(DialogIntegration, OKRefusesABrokenConditionTypedIntoTheBoxAndShowsWhere)
{
    openCodingConvention([&](QDialog &dialog) {
        auto *condition = child<QPlainTextEdit>(dialog, "txtCondition");
        condition->setPlainText(u"Sub Main\n  x = 1\n  If x Then\nEnd Sub"_s);
        ui.messages.clear();
        click(dialog, "cmdOK");
        EXPECT_TRUE(dialog.isVisible());
        ASSERT_EQ(ui.messages.size(), 1u);
        EXPECT_EQ(ui.messages[0].title, u"Quorin Administrator - Syntax Error"_s);
        EXPECT_EQ(child<QTabWidget>(dialog, "tbsConvention")->currentIndex(), 2);
        EXPECT_GE(condition->textCursor().blockNumber(), 2);
    });
}
