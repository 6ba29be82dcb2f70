#pragma once

#include "editors/RuleDialogContext.h"

#include <QString>

#include <functional>
#include <memory>

class FormLauncher;
class IMainForm;
class IRule;
class IViewController;
class Rulebase;

// The one application object: owns the open rulebase and the current view, and carries every
// document-level command. No command lets an error out; each gives its failure value instead.
class Application
{
public:
    // Makes the controller of a view tool id; nullptr for a view that does not exist (yet).
    using ViewFactory = std::function<std::unique_ptr<IViewController>(const QString &viewName)>;

    enum class OpenMode { Ask = 0, RecentList = 1, CommandLine = 2 };

    Application(IMainForm *mainForm, ViewFactory viewFactory = {});
    ~Application();

    bool RulebaseOpen() const { return m_rulebase != nullptr; }
    const std::shared_ptr<Rulebase> &rulebase() const { return m_rulebase; }
    QString CurrentViewName() const { return m_currentViewName; }
    void setCurrentViewName(const QString &name) { m_currentViewName = name; }
    IViewController *CurrentView() const { return m_currentView.get(); }
    IMainForm *mainForm() const { return m_mainForm; }

    void Show();
    void NewRulebase();
    bool OpenRulebase(OpenMode mode, const QString &filename = QString());
    bool SaveRulebase();
    bool SaveRulebaseAs();
    bool CheckForSave();
    void SwitchView(const QString &viewName);
    void TerminateApplication();

    void HelpAbout();
    void HelpContents();
    void HelpSearch();
    void HelpTipOfDay();
    void HelpTarnHomePage();
    void HelpTarnTechSupport();

    // Entry points of the rulebase-wide dialogs and the rule editors; their dialogs come later.
    void ShowCategoryList();
    void ShowSeverityList();
    void ShowDefaultViolations();
    void ShowRulebasePropertiesDialog();
    void ShowTagList(int tagType);
    std::shared_ptr<IRule> NewCodingConvention(bool &cancelled);
    std::shared_ptr<IRule> NewNamingConvention(bool &cancelled);
    std::shared_ptr<IRule> NewUnauthorisedKeyword(bool &cancelled);
    void AddAuthorisedItemsFromProject();
    void NewAuthorisedComponent();
    void NewAuthorisedReference();
    void GenerateDocumentation();

    // The rulebase open now and the category list editor, for a rule dialog.
    RuleDialogContext ruleDialogContext();

private:
    void SetupView();
    // Saves to `path`, asking first when that writes over a file the rulebase loaded only in
    // part; a save clears that mark.
    bool SaveTo(const QString &path);

    IMainForm *m_mainForm; // not owned: the window owns the application's lifetime
    std::shared_ptr<Rulebase> m_rulebase;
    std::unique_ptr<IViewController> m_currentView;
    QString m_currentViewName;
    ViewFactory m_viewFactory;
    // Opens the rules the views ask to edit, in their dialogs.
    std::unique_ptr<FormLauncher> m_ruleEditors;
};
