#include "application/ToolDispatcher.h"

#include "application/Application.h"
#include "platform/ErrorFrame.h"
#include "platform/TextUtils.h"
#include "rulebase/Rulebase.h"
#include "views/CommandTable.h"
#include "views/IMainForm.h"
#include "views/IViewController.h"

#include <functional>

namespace {

using Command = std::function<void(Application &)>;

struct Entry
{
    const char *toolId;
    Command run;
};

void onView(Application &app, const std::function<void(IViewController &)> &run)
{
    if (IViewController *view = app.CurrentView())
        run(*view);
}

// A new rule, once its editor was not cancelled, joins the current view.
void newRule(Application &app, std::shared_ptr<IRule> (Application::*create)(bool &))
{
    bool cancelled = true;
    const std::shared_ptr<IRule> rule = (app.*create)(cancelled);
    if (!cancelled && rule)
        onView(app, [&](IViewController &view) { view.AddItem(rule); });
}

void openedAFile(Application &app)
{
    if (app.mainForm() && app.rulebase())
        app.mainForm()->AddToMRUList(app.rulebase()->Filename());
}

const std::vector<Entry> &entries()
{
    static const std::vector<Entry> table = {
        {"tlNewRulebase", [](Application &a) { a.NewRulebase(); }},
        {"tlOpenRulebase",
         [](Application &a) {
             if (a.OpenRulebase(Application::OpenMode::Ask))
                 openedAFile(a);
         }},
        {"tlSaveRulebase",
         [](Application &a) {
             if (a.SaveRulebase() && a.mainForm())
                 a.mainForm()->Update();
         }},
        {"tlSaveRulebaseAs",
         [](Application &a) {
             if (a.SaveRulebaseAs() && a.mainForm())
                 a.mainForm()->Update();
         }},
        {"tlRulebaseProperties", [](Application &a) { a.ShowRulebasePropertiesDialog(); }},
        {"tlOpenRule", [](Application &a) { onView(a, [](IViewController &v) { v.OpenItem(); }); }},
        {"tlCloneRule",
         [](Application &a) { onView(a, [](IViewController &v) { v.CloneItems(); }); }},
        {"tlDeleteRule",
         [](Application &a) { onView(a, [](IViewController &v) { v.DeleteItems(); }); }},
        {"tlRuleActive",
         [](Application &a) { onView(a, [](IViewController &v) { v.ActivateItems(true); }); }},
        {"tlRuleInactive",
         [](Application &a) { onView(a, [](IViewController &v) { v.ActivateItems(false); }); }},
        {"tlCodingConvention",
         [](Application &a) { newRule(a, &Application::NewCodingConvention); }},
        {"tlNamingConvention",
         [](Application &a) { newRule(a, &Application::NewNamingConvention); }},
        {"tlUnauthorisedKeyword",
         [](Application &a) { newRule(a, &Application::NewUnauthorisedKeyword); }},
        {"tlAuthorisedComponent", [](Application &a) { a.NewAuthorisedComponent(); }},
        {"tlAuthorisedReference", [](Application &a) { a.NewAuthorisedReference(); }},
        {"tlAddFromProject", [](Application &a) { a.AddAuthorisedItemsFromProject(); }},
        {"tlCategoryList", [](Application &a) { a.ShowCategoryList(); }},
        {"tlSeverityList", [](Application &a) { a.ShowSeverityList(); }},
        {"tlDefaultViolations", [](Application &a) { a.ShowDefaultViolations(); }},
        {"tlControlTags", [](Application &a) { a.ShowTagList(1); }},
        {"tlDataTags", [](Application &a) { a.ShowTagList(2); }},
        {"tlScopeTags", [](Application &a) { a.ShowTagList(3); }},
        {"tlGenerateDocumentation", [](Application &a) { a.GenerateDocumentation(); }},
        {"tlContents", [](Application &a) { a.HelpContents(); }},
        {"tlSearch", [](Application &a) { a.HelpSearch(); }},
        {"tlTipOfDay", [](Application &a) { a.HelpTipOfDay(); }},
        {"tlHomePage", [](Application &a) { a.HelpTarnHomePage(); }},
        {"tlTechSupport", [](Application &a) { a.HelpTarnTechSupport(); }},
        {"tlAbout", [](Application &a) { a.HelpAbout(); }},
    };
    return table;
}

} // namespace

bool ExecuteTool(Application &application, const QString &toolId)
{
    for (const QString &view : CommandTable::viewTools()) {
        if (Text::same(toolId, view)) {
            application.SwitchView(view);
            return true;
        }
    }
    for (const Entry &entry : entries()) {
        if (Text::same(toolId, QLatin1String(entry.toolId))) {
            guardedVoid("abMain_ToolClick", "frmMain", [&] { entry.run(application); });
            return true;
        }
    }
    return false;
}

bool OpenRecentFile(Application &application, const QString &filename)
{
    if (!application.OpenRulebase(Application::OpenMode::RecentList, filename))
        return false;
    openedAFile(application);
    return true;
}
