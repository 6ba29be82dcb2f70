#include "views/CommandTable.h"

#include "platform/TextUtils.h"

namespace CommandTable {

const std::vector<ToolDefinition> &tools()
{
    // clang-format off
    static const std::vector<ToolDefinition> table = {
        // id                          caption                                   toolbar caption              tool tip                              opens band        checkable
        {"tlNewRulebase",              "&New Rulebase...",                       nullptr,                     "New Rulebase",                       nullptr,          false},
        {"tlOpenRulebase",             "&Open Rulebase...",                      nullptr,                     "Open Rulebase",                      nullptr,          false},
        {"tlSaveRulebase",             "&Save Rulebase",                         nullptr,                     "Save Rulebase",                      nullptr,          false},
        {"tlSaveRulebaseAs",           "Save Rulebase &As...",                   nullptr,                     nullptr,                              nullptr,          false},
        {"tlRulebaseProperties",       "Rulebase &Properties...",                nullptr,                     "Edit Rulebase Properties",           nullptr,          false},
        {"tlExit",                     "E&xit",                                  nullptr,                     nullptr,                              nullptr,          false},
        {"tlFileToolbar",              "&File Toolbar",                          nullptr,                     nullptr,                              nullptr,          true},
        {"tlViewToolbar",              "&View Toolbar",                          nullptr,                     nullptr,                              nullptr,          true},
        {"tlRuleToolbar",              "&Rule Toolbar",                          nullptr,                     nullptr,                              nullptr,          true},
        {"tlToolsToolbar",             "&Tools Toolbar",                         nullptr,                     nullptr,                              nullptr,          true},
        {"tlStatusBar",                "&Status Bar",                            nullptr,                     nullptr,                              nullptr,          true},
        {"tlQuorinBar",                "&Quorin Bar",                            nullptr,                     nullptr,                              nullptr,          true},
        {"tlDocumentationWindow",      "&Documentation Window",                  nullptr,                     nullptr,                              nullptr,          true},
        {"tlToolbars",                 "&Toolbars",                              nullptr,                     nullptr,                              "mnuToolbars",    false},
        {"tlCurrentView",              "&Current View",                          nullptr,                     "Set Current View",                   "mnuCurrentView", false},
        {"tlExpandAll",                "&Expand All",                            nullptr,                     "Expand All",                         nullptr,          false},
        {"tlCollapseAll",              "C&ollapse All",                          nullptr,                     "Collapse All",                       nullptr,          false},
        {"tlCodingConventions",        "&Coding Conventions",                    nullptr,                     nullptr,                              nullptr,          true},
        {"tlDocumentationConventions", "&Documentation Conventions",             nullptr,                     nullptr,                              nullptr,          false},
        {"tlNamingConventions",        "&Naming Conventions",                    nullptr,                     nullptr,                              nullptr,          true},
        {"tlAuthorisedItems",          "Authority &Items",                       nullptr,                     nullptr,                              nullptr,          true},
        {"tlCategoryView",             "Conventions by C&ategory",               nullptr,                     nullptr,                              nullptr,          true},
        {"tlSeverityView",             "Conventions by &Severity",               nullptr,                     nullptr,                              nullptr,          true},
        {"tlNew",                      "&New",                                   nullptr,                     nullptr,                              "mnuNewRule",     false},
        {"tlOpenRule",                 "&Open...",                               nullptr,                     nullptr,                              nullptr,          false},
        {"tlCloneRule",                "C&lone",                                 nullptr,                     "Clone Selected Items",               nullptr,          false},
        {"tlDeleteRule",               "&Delete",                                "&Delete Rule",              "Delete Selected Items",              nullptr,          false},
        {"tlRuleActive",               "Mark As &Active",                        nullptr,                     nullptr,                              nullptr,          false},
        {"tlRuleInactive",             "Mark As &Inactive",                      nullptr,                     nullptr,                              nullptr,          false},
        {"tlCodingConvention",         "&Coding Convention...",                  nullptr,                     "Add New Coding Convention",          nullptr,          false},
        {"tlNamingConvention",         "&Naming Convention...",                  nullptr,                     "Add New Naming Convention",          nullptr,          false},
        {"tlUnauthorisedKeyword",      "&Unauthorised Keyword...",               nullptr,                     "Add New Unauthorised Keyword",       nullptr,          false},
        {"tlAuthorisedComponent",      "&Authorised Component...",               "Authorised &Component...",  "Add New Authorised Component",       nullptr,          false},
        {"tlAuthorisedReference",      "Authorised &Reference...",               nullptr,                     "Add New Authorised Reference",       nullptr,          false},
        {"tlAddFromProject",           "Add Authorised Items From &Project...",  nullptr,                     "Add Authorised Items From Project",  nullptr,          false},
        {"tlCategoryList",             "&Category List...",                      nullptr,                     "Category List",                      nullptr,          false},
        {"tlSeverityList",             "&Severity List...",                      nullptr,                     "Severity List",                      nullptr,          false},
        {"tlDefaultViolations",        "&Default Violations...",                 nullptr,                     nullptr,                              nullptr,          false},
        {"tlControlTags",              "&Control Tags...",                       nullptr,                     "Control Tag List",                   nullptr,          false},
        {"tlDataTags",                 "&Data Type Tags...",                     nullptr,                     "Data Type Tag List",                 nullptr,          false},
        {"tlScopeTags",                "&Scope Tags...",                         nullptr,                     "Scope Tag List",                     nullptr,          false},
        {"tlTagLists",                 "&Name Tags",                             nullptr,                     nullptr,                              "mnuTagLists",    false},
        {"tlGenerateDocumentation",    "Documentation &Wizard...",               nullptr,                     nullptr,                              nullptr,          false},
        {"tlPreviewProject",           "Pre&view on Project...",                 nullptr,                     "Preview the Rulebase on a Project",  nullptr,          false},
        {"tlContents",                 "&Contents...",                           nullptr,                     nullptr,                              nullptr,          false},
        {"tlSearch",                   "&Search...",                             nullptr,                     nullptr,                              nullptr,          false},
        {"tlTipOfDay",                 "&Tip Of The Day...",                     nullptr,                     nullptr,                              nullptr,          false},
        {"tlHomePage",                 "&Home Page...",                          nullptr,                     nullptr,                              nullptr,          false},
        {"tlTechSupport",              "&Technical Support...",                  nullptr,                     nullptr,                              nullptr,          false},
        {"tlTarnWeb",                  "Tarnwick On The &Web",                   nullptr,                     nullptr,                              "mnuTarnWeb",     false},
        {"tlAbout",                    "&About Quorin Administrator...",         nullptr,                     nullptr,                              nullptr,          false},
    };
    // clang-format on
    return table;
}

const std::vector<BandDefinition> &bands()
{
    static const std::vector<BandDefinition> table = {
        {"mnuFile",
         "&File",
         BandKind::Menu,
         {"tlNewRulebase",
          "tlOpenRulebase",
          "-",
          "tlSaveRulebase",
          "tlSaveRulebaseAs",
          "tlRulebaseProperties",
          "-",
          CommandTable::recentFilesAnchor,
          "tlExit"}},
        {"mnuView",
         "&View",
         BandKind::Menu,
         {"tlCurrentView",
          "tlExpandAll",
          "tlCollapseAll",
          "-",
          "tlQuorinBar",
          "tlDocumentationWindow",
          "tlToolbars",
          "tlStatusBar"}},
        {"mnuRule",
         "&Rule",
         BandKind::Menu,
         {"tlNew",
          "tlOpenRule",
          "tlCloneRule",
          "tlDeleteRule",
          "-",
          "tlRuleActive",
          "tlRuleInactive"}},
        {"mnuTools",
         "&Tools",
         BandKind::Menu,
         {"tlCategoryList",
          "tlSeverityList",
          "-",
          "tlDefaultViolations",
          "-",
          "tlTagLists",
          "-",
          "tlGenerateDocumentation",
          "tlPreviewProject"}},
        {"mnuHelp",
         "&Help",
         BandKind::Menu,
         {"tlContents", "tlSearch", "-", "tlTipOfDay", "-", "tlTarnWeb", "-", "tlAbout"}},
        {"mnuToolbars",
         "Toolbars",
         BandKind::Popup,
         {"tlFileToolbar", "tlViewToolbar", "tlRuleToolbar", "tlToolsToolbar"}},
        {"mnuCurrentView",
         "Current View",
         BandKind::Popup,
         {"tlCodingConventions",
          "tlNamingConventions",
          "tlAuthorisedItems",
          "tlCategoryView",
          "tlSeverityView"}},
        {"mnuNewRule",
         "New Rule",
         BandKind::Popup,
         {"tlCodingConvention",
          "tlNamingConvention",
          "-",
          "tlAuthorisedComponent",
          "tlAuthorisedReference",
          "tlAddFromProject",
          "-",
          "tlUnauthorisedKeyword"}},
        {"mnuTarnWeb", "Tarnwick On The Web", BandKind::Popup, {"tlHomePage", "tlTechSupport"}},
        {"mnuTagLists",
         "Name Tags",
         BandKind::Popup,
         {"tlControlTags", "tlDataTags", "tlScopeTags"}},
        {"mnuTreePopup", "", BandKind::Popup, {"tlExpandAll", "tlCollapseAll"}},
        {"mnuListPopup",
         "",
         BandKind::Popup,
         {"tlOpenRule",
          "tlNew",
          "tlCloneRule",
          "tlDeleteRule",
          "-",
          "tlRuleActive",
          "tlRuleInactive"}},
        {"tlbFile",
         "File",
         BandKind::Toolbar,
         {"tlNewRulebase", "tlOpenRulebase", "tlSaveRulebase", "tlRulebaseProperties"}},
        {"tlbView", "View", BandKind::Toolbar, {"tlCurrentView", "tlExpandAll", "tlCollapseAll"}},
        {"tlbRule",
         "Rule",
         BandKind::Toolbar,
         {"tlCloneRule",
          "tlDeleteRule",
          "-",
          "tlCodingConvention",
          "tlNamingConvention",
          "-",
          "tlAuthorisedComponent",
          "tlAuthorisedReference",
          "tlAddFromProject",
          "-",
          "tlUnauthorisedKeyword"}},
        {"tlbTools",
         "Tools",
         BandKind::Toolbar,
         {"tlCategoryList", "tlSeverityList", "-", "tlControlTags", "tlDataTags", "tlScopeTags"}},
        {"lbarMain",
         "Quorin Bar",
         BandKind::NavigationBar,
         {"tlCodingConventions",
          "tlNamingConventions",
          "tlAuthorisedItems",
          "tlCategoryView",
          "tlSeverityView"}},
        {"stbMain", "Status Bar", BandKind::StatusBar, {}},
    };
    return table;
}

const ToolDefinition *findTool(const QString &id)
{
    for (const ToolDefinition &tool : tools()) {
        if (Text::same(id, QLatin1String(tool.id)))
            return &tool;
    }
    return nullptr;
}

const BandDefinition *findBand(const QString &id)
{
    for (const BandDefinition &band : bands()) {
        if (Text::same(id, QLatin1String(band.id)))
            return &band;
    }
    return nullptr;
}

QStringList viewTools()
{
    return {QStringLiteral("tlCodingConventions"),
            QStringLiteral("tlNamingConventions"),
            QStringLiteral("tlAuthorisedItems"),
            QStringLiteral("tlCategoryView"),
            QStringLiteral("tlSeverityView")};
}

QStringList rulebaseTools()
{
    return {QStringLiteral("tlSaveRulebase"),
            QStringLiteral("tlSaveRulebaseAs"),
            QStringLiteral("tlRulebaseProperties"),
            QStringLiteral("tlExpandAll"),
            QStringLiteral("tlCollapseAll"),
            QStringLiteral("tlCurrentView"),
            QStringLiteral("tlQuorinBar"),
            QStringLiteral("tlDocumentationWindow"),
            QStringLiteral("tlCategoryList"),
            QStringLiteral("tlSeverityList"),
            QStringLiteral("tlControlTags"),
            QStringLiteral("tlDataTags"),
            QStringLiteral("tlScopeTags"),
            QStringLiteral("tlDefaultViolations"),
            QStringLiteral("tlGenerateDocumentation"),
            QStringLiteral("tlPreviewProject")};
}

QStringList authorisedItemTools()
{
    return {QStringLiteral("tlAddFromProject"),
            QStringLiteral("tlAuthorisedComponent"),
            QStringLiteral("tlAuthorisedReference")};
}

} // namespace CommandTable
