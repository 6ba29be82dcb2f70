#include "application/HelpTopics.h"

namespace HelpTopics {

const std::vector<Topic> &all()
{
    static const std::vector<Topic> table = {
        {Introduction, "Introduction.html", "Introduction"},
        {MainWindow, "MainWindow.htm", "The main window"},
        {CodingConventionsView, "CodingConventionsView.htm", "Coding conventions view"},
        {NamingConventionsView, "NamingConventionsView.htm", "Naming conventions view"},
        {AuthorisedItemsView, "AuthorityItemsView.htm", "Authority items view"},
        {CategoryView, "CategoryView.htm", "Conventions by category"},
        {SeverityView, "SeverityView.htm", "Conventions by severity"},
        {CodingConventionEditor, "CodingConvention.htm", "Coding convention editor"},
        {NamingConventionEditor, "NamingConvention.htm", "Naming convention editor"},
        {ConditionEditor, "ConditionEditor.htm", "Condition editor"},
        {UnauthorisedKeywordEditor, "UnauthorisedKeyword.htm", "Unauthorised keyword editor"},
        {PatternTest, "PatternTest.htm", "Pattern test"},
        {ObjectPicker, "Pickers.htm", "Object and event pickers"},
        {EventPicker, "Pickers.htm", "Object and event pickers"},
        {RulebaseProperties, "RulebaseProperties.htm", "Rulebase properties"},
        {CategoryList, "CategoryList.htm", "Category list"},
        {CategoryEditor, "CategoryEditor.htm", "Category editor"},
        {SeverityList, "SeverityList.htm", "Severity list"},
        {SeverityEditor, "SeverityEditor.htm", "Severity editor"},
        {DefaultViolations, "DefaultViolations.htm", "Default violations"},
        {TagList, "TagList.htm", "Name tag lists"},
        {AddFromProject, "AddFromProject.htm", "Add authorised items from a project"},
        {AuthorisedComponent, "AuthorisedComponent.htm", "Authorised component"},
        {AuthorisedReference, "AuthorisedReference.htm", "Authorised reference"},
        {DocumentationWizard, "DocumentationWizard.htm", "Documentation wizard"},
        {About, "About.htm", "About Quorin Administrator"},
        {TipOfTheDay, "TipOfTheDay.htm", "Tip of the day"},
        {ConditionLanguage, "ConditionLanguage.htm", "The condition language"},
    };
    return table;
}

QString contentsPage()
{
    return QStringLiteral("index.htm");
}

QString searchPage()
{
    return QStringLiteral("search.htm");
}

QString pageForContext(int context)
{
    for (const Topic &topic : all()) {
        if (topic.context == context)
            return QLatin1String(topic.page);
    }
    return QString();
}

namespace {
// "CategoryList.htm" and "categorylist.html" are one name.
QString stem(QString name)
{
    name = name.toLower();
    if (name.endsWith(QLatin1String(".html")))
        name.chop(1);
    return name;
}
} // namespace

QString pageForTopic(const QString &topic)
{
    QString name = topic.trimmed();
    if (name.startsWith(QLatin1String("::")))
        name.remove(0, 2);
    while (name.startsWith(QLatin1Char('/')) || name.startsWith(QLatin1Char('\\')))
        name.remove(0, 1);
    // An anchor stays with the page it belongs to.
    QString anchor;
    if (const qsizetype hash = name.indexOf(QLatin1Char('#')); hash >= 0) {
        anchor = name.mid(hash);
        name.truncate(hash);
    }
    const QString wanted = stem(name);
    for (const QString &page : {contentsPage(), searchPage()}) {
        if (stem(page) == wanted)
            return page + anchor;
    }
    for (const Topic &topic : all()) {
        if (stem(QLatin1String(topic.page)) == wanted)
            return QLatin1String(topic.page) + anchor;
    }
    return QString();
}

QString topicPath(int context)
{
    const QString page = pageForContext(context);
    return page.isEmpty() ? QString() : QStringLiteral("::/") + page;
}

} // namespace HelpTopics
