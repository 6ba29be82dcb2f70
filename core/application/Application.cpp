#include "application/Application.h"

#include "collections/ObjectKeyedListAdapter.h"
#include "controls/TreeControl.h"
#include "docs/RulebaseDocCreator.h"
#include "editors/CategorySeverityForm.h"
#include "editors/DefaultViolationsForm.h"
#include "editors/FormLauncher.h"
#include "editors/IConventionForm.h"
#include "editors/IFormFactory.h"
#include "editors/RulebaseDocCreatorForm.h"
#include "editors/RulebasePropertiesForm.h"
#include "editors/TagListForm.h"
#include "platform/ErrorFrame.h"
#include "platform/FileUtils.h"
#include "platform/GlobalObjects.h"
#include "platform/QuorinAdminData.h"
#include "platform/QuorinData.h"
#include "platform/TextUtils.h"
#include "platform/UserInterface.h"
#include "rulebase/CategoryList.h"
#include "rulebase/CodingConvention.h"
#include "rulebase/NamingConvention.h"
#include "rulebase/RuleLists.h"
#include "rulebase/Rulebase.h"
#include "rulebase/RulebaseLoadCriteria.h"
#include "rulebase/RulebaseManager.h"
#include "rulebase/SeverityItem.h"
#include "rulebase/TagItem.h"
#include "rulebase/UnauthorisedKeyword.h"
#include "rulebase/ViolationDefinition.h"
#include "views/AuthorisedItemsView.h"
#include "views/IMainForm.h"
#include "views/IViewController.h"

#include <QDir>
#include <QFileInfo>

namespace {

constexpr const char *module = "Application";

struct ViewInfo
{
    const char *toolId;
    int helpContext;
};

const ViewInfo views[] = {
    {"tlCodingConventions", 65},
    {"tlNamingConventions", 66},
    {"tlAuthorisedItems", 67},
    {"tlCategoryView", 68},
    {"tlSeverityView", 69},
};

const ViewInfo *findView(const QString &name)
{
    for (const ViewInfo &v : views) {
        if (Text::same(name, QLatin1String(v.toolId)))
            return &v;
    }
    return nullptr;
}

// The number at the start of the key of the main window's selected tree node; 0 for none.
qint32 selectedNodeNumber(IMainForm *mainForm)
{
    TreeControl *tree = mainForm ? mainForm->tree() : nullptr;
    if (!tree || tree->selectedItem() == 0)
        return 0;
    return Text::valLong(tree->key(tree->selectedItem()));
}

// A new rule made under a category or severity node lands in it.
void preselectViolation(const QString &viewName, ViolationDefinition &definition, qint32 number)
{
    if (Text::same(viewName, QStringLiteral("tlCategoryView")))
        definition.setCategoryID(number);
    else if (Text::same(viewName, QStringLiteral("tlSeverityView")))
        definition.setSeverity(number);
}

// Shows the rule's dialog; unless cancelled the rule joins the rulebase as a new one.
std::shared_ptr<IRule>
runNewRule(Application &application, const std::shared_ptr<IRule> &rule, bool &cancelled)
{
    cancelled = true;
    std::unique_ptr<IConventionForm> form
        = IFormFactory::current().createConventionForm(rule->RuleType());
    if (!form || !application.rulebase())
        return nullptr;
    form->setConvention(rule);
    form->setContext(application.ruleDialogContext());
    form->Show();
    cancelled = form->Cancelled();
    if (cancelled)
        return nullptr;
    application.rulebase()->RuleLists()->AddConvention(rule, true);
    return rule;
}

// The property a new naming convention of an object names first: its Name.
constexpr qint32 namePropertyType = 37;

} // namespace

Application::Application(IMainForm *mainForm, ViewFactory viewFactory)
    : m_mainForm(mainForm)
    , m_viewFactory(std::move(viewFactory))
    , m_ruleEditors(std::make_unique<FormLauncher>([this] { return ruleDialogContext(); }))
{
    // A launcher put in place before, such as a test's, keeps its place.
    if (!IRuleEditorLauncher::installed())
        IRuleEditorLauncher::install(m_ruleEditors.get());
}

Application::~Application()
{
    if (IRuleEditorLauncher::installed() == m_ruleEditors.get())
        IRuleEditorLauncher::install(nullptr);
}

void Application::Show()
{
    guardedVoid("Show", module, [this] {
        m_mainForm->ShowSplashScreen();
        m_mainForm->ShowWindow();
        if (gobjAdminData && gobjAdminData->DisplayTips())
            HelpTipOfDay();
    });
}

void Application::NewRulebase()
{
    guardedVoid("NewRulebase", module, [this] {
        if (!CheckForSave())
            return;
        m_rulebase = std::make_shared<Rulebase>();
        if (!m_currentView) {
            SwitchView(QStringLiteral("tlCodingConventions"));
        } else {
            m_currentView->setRulebase(m_rulebase);
            m_currentView->Populate();
        }
        m_mainForm->Update();
    });
}

bool Application::OpenRulebase(OpenMode mode, const QString &filename)
{
    return guarded("OpenRulebase", module, false, [&]() -> bool {
        if (!CheckForSave())
            return false;
        QString name = filename;
        if (mode == OpenMode::Ask) {
            FileDialogRequest request;
            request.fileType = 1;
            request.title = QStringLiteral("Select Quorin Rulebase");
            request.folder = gobjAdminData ? gobjAdminData->LastPath() : QString();
            if (!UserInterface::current().getOpenFilename(request))
                return false;
            if (gobjAdminData)
                gobjAdminData->setLastPath(request.folder);
            name = request.path;
        }
        if (!FileUtils::FileExists(name)) {
            if (mode == OpenMode::RecentList) {
                if (askYesNo(
                        QStringLiteral("Can't find the rulebase '") + name
                            + QStringLiteral(
                                "', do you want to remove it from the most recently used list?"),
                        MessageResult::No)
                    == MessageResult::Yes) {
                    m_mainForm->RemoveFromMRUList(name);
                }
            } else {
                showWarning(QStringLiteral("Can't find the rulebase '") + name
                            + QStringLiteral("'."));
            }
            return false;
        }

        RulebaseLoadCriteria criteria;
        criteria.setRulebaseFile(name);
        criteria.setLoadForEdit(true);
        // A failed load keeps the rulebase open before it, whole: its view still edits it, Save
        // still writes it and closing still asks. The window never shows one it can't save.
        std::shared_ptr<Rulebase> loaded = RulebaseManager().LoadRulebase(criteria);
        if (!loaded) {
            showWarning(QStringLiteral("Failed to open '") + name
                        + QStringLiteral("', it may not be a valid Quorin rulebase."));
            return false;
        }
        m_rulebase = std::move(loaded);
        if (!Text::same(m_currentViewName, QStringLiteral("tlCategoryView"))) {
            SwitchView(QStringLiteral("tlCategoryView"));
        } else if (m_currentView) {
            m_currentView->setRulebase(m_rulebase);
            m_currentView->Populate();
        }
        m_mainForm->Update();
        return true;
    });
}

bool Application::SaveRulebase()
{
    return guarded("SaveRulebase", module, false, [this]() -> bool {
        if (!m_rulebase)
            return false;
        if (m_rulebase->Filename().isEmpty())
            return SaveRulebaseAs();
        return SaveTo(m_rulebase->Filename());
    });
}

bool Application::SaveRulebaseAs()
{
    return guarded("SaveRulebaseAs", module, false, [this]() -> bool {
        if (!m_rulebase)
            return false;
        FileDialogRequest request;
        request.fileType = 1;
        request.title = QStringLiteral("Save Quorin Rulebase");
        if (!m_rulebase->Filename().isEmpty()) {
            request.fileTitle = m_rulebase->FileTitle();
            request.folder = FileUtils::PathFromFilename(m_rulebase->Filename());
            request.path = m_rulebase->Filename();
        } else {
            request.folder = QDir::currentPath() + QLatin1Char('/');
            request.fileTitle = m_rulebase->Title().isEmpty()
                                    ? QStringLiteral("Untitled.qrb")
                                    : m_rulebase->Title() + QStringLiteral(".qrb");
            request.path = request.folder + request.fileTitle;
        }
        if (!UserInterface::current().getSaveFilename(request))
            return false;
        const bool saved = SaveTo(request.path);
        if (saved) {
            m_rulebase->setFilename(request.path);
            m_mainForm->AddToMRUList(request.path);
        }
        return saved;
    });
}

bool Application::SaveTo(const QString &path)
{
    // What a part-loaded file holds beyond this rulebase would be gone once it is written over.
    if (m_rulebase->LoadedInPart() && QFileInfo(path) == QFileInfo(m_rulebase->Filename())
        && askYesNo(QStringLiteral("'") + m_rulebase->Filename()
                        + QStringLiteral("' loaded only in part: what could not be read is not in "
                                         "this rulebase, and saving over the file would lose it "
                                         "for good. Do you want to save over it anyway?"),
                    MessageResult::No)
               != MessageResult::Yes)
        return false;
    if (!RulebaseManager().Save(*m_rulebase, path))
        return false;
    m_rulebase->setLoadedInPart(false);
    return true;
}

bool Application::CheckForSave()
{
    return guarded("CheckForSave", module, false, [this]() -> bool {
        if (!m_rulebase || !m_rulebase->Dirty())
            return true;
        switch (askYesNoCancel(
            QStringLiteral("The current rulebase has changed, do you wish to save the changes?"),
            MessageResult::Yes)) {
        case MessageResult::Yes:
            return SaveRulebase();
        case MessageResult::No:
            return true;
        default:
            return false;
        }
    });
}

void Application::SwitchView(const QString &viewName)
{
    guardedVoid("SwitchView", module, [&] {
        if (Text::same(viewName, m_currentViewName))
            return;
        const ViewInfo *info = findView(viewName);
        if (!info)
            return; // an unknown name leaves the current view in place
        const QString toolId = QLatin1String(info->toolId);
        std::unique_ptr<IViewController> view = m_viewFactory ? m_viewFactory(toolId) : nullptr;
        // A view that can't be made yet is treated like an unknown one: nothing changes.
        if (m_viewFactory && !view)
            return;
        m_mainForm->SetCurrentViewTool(toolId);
        m_mainForm->SetHelpContext(info->helpContext);
        if (view)
            m_currentView = std::move(view);
        if (m_currentView)
            m_currentView->setRulebase(m_rulebase);
        m_currentViewName = toolId;
        SetupView();
        m_mainForm->Update();
        if (m_currentView)
            m_currentView->SetEnabledState();
    });
}

void Application::SetupView()
{
    if (!m_currentView)
        return;
    m_currentView->setMainForm(m_mainForm);
    m_currentView->Customise();
    m_currentView->Populate();
}

void Application::TerminateApplication()
{
    m_currentView.reset();
    m_rulebase.reset();
    m_mainForm = nullptr;
}

void Application::HelpAbout()
{
    guardedVoid("HelpAbout", module, [this] { m_mainForm->RunAbout(); });
}

void Application::HelpContents()
{
    UserInterface::current().showHelp(HelpCommand::Contents, QString(), 0);
}

void Application::HelpSearch()
{
    UserInterface::current().showHelp(HelpCommand::Search, QString(), 0);
}

void Application::HelpTipOfDay()
{
    guardedVoid("HelpTipOfDay", module, [this] {
        const int last = gobjAdminData ? gobjAdminData->LastTip() : 0;
        const int shown = m_mainForm->RunTipOfDay(last);
        if (gobjAdminData)
            gobjAdminData->setLastTip(shown);
    });
}

RuleDialogContext Application::ruleDialogContext()
{
    return {m_rulebase, [this] { ShowCategoryList(); }};
}

void Application::HelpTarnHomePage()
{
    if (gobjQuorinData)
        openDocument(gobjQuorinData->HomePageURL());
}

void Application::HelpTarnTechSupport()
{
    if (gobjQuorinData)
        openDocument(gobjQuorinData->TechSupportPageURL());
}

void Application::ShowCategoryList()
{
    guardedVoid("ShowCategoryList", module, [this] {
        if (!m_rulebase)
            return;
        CategorySeverityForm form;
        form.setDialogType(CategorySeverityForm::Categories);
        form.setItemList(asKeyedList(m_rulebase->CategoryList()));
        form.setRulebase(m_rulebase);
        form.Load();
        IFormFactory::current().runCategorySeverity(form);
        if (!form.Dirty())
            return;
        m_rulebase->CategoryList()->Sort();
        if (m_currentView)
            m_currentView->CategoryListChanged();
    });
}

void Application::ShowSeverityList()
{
    guardedVoid("ShowSeverityList", module, [this] {
        if (!m_rulebase)
            return;
        CategorySeverityForm form;
        form.setDialogType(CategorySeverityForm::Severities);
        form.setItemList(asKeyedList(m_rulebase->SeverityList()));
        form.Load();
        IFormFactory::current().runCategorySeverity(form);
        if (!form.Dirty())
            return;
        // A severity has no dirty flag of its own; without this an edited severity would be
        // lost at the next close without a question.
        m_rulebase->SeverityList()->setDirty(true);
        if (m_currentView)
            m_currentView->SeverityListChanged();
    });
}

void Application::ShowDefaultViolations()
{
    guardedVoid("ShowDefaultViolations", module, [this] {
        if (!m_rulebase)
            return;
        DefaultViolationsForm form;
        form.setDefaultViolations(m_rulebase->DefaultViolations());
        form.setCategoryList(m_rulebase->CategoryList());
        form.setSeverityList(m_rulebase->SeverityList());
        form.Load();
        IFormFactory::current().runDefaultViolations(form);
    });
}

void Application::ShowRulebasePropertiesDialog()
{
    guardedVoid("ShowRulebasePropertiesDialog", module, [this] {
        if (!m_rulebase)
            return;
        RulebasePropertiesForm form;
        form.setRulebase(m_rulebase);
        form.Load();
        IFormFactory::current().runRulebaseProperties(form);
    });
}

void Application::ShowTagList(int tagType)
{
    guardedVoid("ShowTagList", module, [&] {
        if (!m_rulebase)
            return;
        TagListForm form;
        std::shared_ptr<ObjectKeyedArrayList<TagItem>> list;
        switch (tagType) {
        case TagListForm::ControlTags:
            list = m_rulebase->ControlTags();
            form.setUnknownControlViolation(m_rulebase->UnknownControlViolation());
            break;
        case TagListForm::DataTypeTags:
            list = m_rulebase->DataTypeTags();
            form.setUseCTagsAsDTTags(m_rulebase->UseCTagsAsDTTags());
            form.setArrayTag(m_rulebase->ArrayTag());
            break;
        case TagListForm::ScopeTags:
            list = m_rulebase->ScopeTags();
            break;
        default:
            return;
        }
        form.Initialise(list, tagType);
        IFormFactory::current().runTagList(form);
        // Only what changed is copied back, since the rulebase's setters mark it dirty; a
        // change of case alone in the array tag does not count.
        if (tagType == TagListForm::ControlTags) {
            if (form.UnknownControlViolation() != m_rulebase->UnknownControlViolation())
                m_rulebase->setUnknownControlViolation(form.UnknownControlViolation());
        } else if (tagType == TagListForm::DataTypeTags) {
            if (form.UseCTagsAsDTTags() != m_rulebase->UseCTagsAsDTTags())
                m_rulebase->setUseCTagsAsDTTags(form.UseCTagsAsDTTags());
            if (!Text::same(form.ArrayTag(), m_rulebase->ArrayTag()))
                m_rulebase->setArrayTag(form.ArrayTag());
        }
    });
}

std::shared_ptr<IRule> Application::NewCodingConvention(bool &cancelled)
{
    cancelled = true;
    return guarded("NewCodingConvention", module, std::shared_ptr<IRule>(), [&] {
        auto rule = std::make_shared<CodingConvention>();
        const qint32 number = selectedNodeNumber(m_mainForm);
        if (number != 0) {
            if (Text::same(m_currentViewName, QStringLiteral("tlCodingConventions")))
                rule->AddParserEventID(number);
            else
                preselectViolation(m_currentViewName, *rule->ViolationDefinition(), number);
        }
        return runNewRule(*this, rule, cancelled);
    });
}

std::shared_ptr<IRule> Application::NewNamingConvention(bool &cancelled)
{
    cancelled = true;
    return guarded("NewNamingConvention", module, std::shared_ptr<IRule>(), [&] {
        auto rule = std::make_shared<NamingConvention>();
        const qint32 number = selectedNodeNumber(m_mainForm);
        if (number != 0) {
            if (Text::same(m_currentViewName, QStringLiteral("tlNamingConventions"))) {
                rule->setObjectType(number);
                rule->setPropertyType(namePropertyType);
            } else {
                preselectViolation(m_currentViewName, *rule->ViolationDefinition(), number);
            }
        }
        return runNewRule(*this, rule, cancelled);
    });
}

std::shared_ptr<IRule> Application::NewUnauthorisedKeyword(bool &cancelled)
{
    cancelled = true;
    return guarded("NewUnauthorisedKeyword", module, std::shared_ptr<IRule>(), [&] {
        return runNewRule(*this, std::make_shared<UnauthorisedKeyword>(), cancelled);
    });
}

// The authorised item commands belong to the authorised items view alone; with any other
// view current they do nothing.
void Application::AddAuthorisedItemsFromProject()
{
    guardedVoid("AddAuthorisedItemsFromProject", module, [this] {
        if (auto *view = dynamic_cast<AuthorisedItemsView *>(m_currentView.get()))
            view->AddAuthorisedItemsFromProject();
    });
}

void Application::NewAuthorisedComponent()
{
    guardedVoid("NewAuthorisedComponent", module, [this] {
        if (auto *view = dynamic_cast<AuthorisedItemsView *>(m_currentView.get()))
            view->NewAuthorisedComponent();
    });
}

void Application::NewAuthorisedReference()
{
    guardedVoid("NewAuthorisedReference", module, [this] {
        if (auto *view = dynamic_cast<AuthorisedItemsView *>(m_currentView.get()))
            view->NewAuthorisedReference();
    });
}

void Application::GenerateDocumentation()
{
    guardedVoid("GenerateDocumentation", module, [this] {
        if (!m_rulebase)
            return;
        bool cancelled = false;
        bool generated = false;
        {
            RulebaseDocCreatorForm form;
            form.setRulebase(m_rulebase);
            // Without a dialog to show, the plan stays as it was found.
            if (!IFormFactory::current().runDocCreator(form) && !form.Cancelled())
                form.RestorePlan();
            cancelled = form.Cancelled();
            generated = form.Generated();
        }
        if (cancelled || generated)
            return;
        if (askYesNo(QStringLiteral("Do you wish to generate the Rulebase documentation?"),
                     MessageResult::Yes)
            != MessageResult::Yes)
            return;
        // Asked before the hourglass, which would otherwise stand over the question.
        QString organisation;
        if (!RulebaseDocCreator::ResolveOrganisation(organisation))
            return;
        m_mainForm->SetBusy(true);
        RulebaseDocCreator writer;
        writer.setOrganisation(organisation);
        QString document;
        if (writer.CreateDocumentation(*m_rulebase, document))
            openDocument(document);
    });
    m_mainForm->SetBusy(false);
}
