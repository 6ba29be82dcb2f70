#pragma once

#include <QString>

#include <vector>

// The one table of the help: which page shows for a help context id, and which pages a topic
// path may name. Windows and dialogs ask for help by these ids or by "::/Page.htm" paths; the
// help viewer turns either into a page of the help folder.
namespace HelpTopics {

// Context ids of the program's windows.
enum Context : int {
    Introduction = 1,
    MainWindow = 60,
    CodingConventionsView = 65,
    NamingConventionsView = 66,
    AuthorisedItemsView = 67,
    CategoryView = 68,
    SeverityView = 69,
    CodingConventionEditor = 70,
    NamingConventionEditor = 71,
    ConditionEditor = 72,
    UnauthorisedKeywordEditor = 73,
    PatternTest = 74,
    ObjectPicker = 75,
    EventPicker = 76,
    RulebaseProperties = 77,
    CategoryList = 89,
    CategoryEditor = 90,
    SeverityList = 91,
    SeverityEditor = 92,
    DefaultViolations = 93,
    TagList = 94,
    AddFromProject = 95,
    AuthorisedComponent = 96,
    AuthorisedReference = 97,
    DocumentationWizard = 98,
    About = 99,
    TipOfTheDay = 100,
    ConditionLanguage = 101,
};

struct Topic
{
    int context;
    const char *page;
    const char *title;
};

// Every topic, in the order of the contents page.
const std::vector<Topic> &all();

QString contentsPage();
QString searchPage();
// The page of a context id; empty for an id that has none.
QString pageForContext(int context);
// The page a topic path names ("::/CategoryList.htm", "CategoryList.htm", "/categorylist.html"):
// the name is matched ignoring case and the difference of ".htm" and ".html". Empty when no
// page of the help has that name.
QString pageForTopic(const QString &topic);
// The topic path of a context id, as the help calls take it: "::/" and the page.
QString topicPath(int context);

} // namespace HelpTopics
