#include "DocTestSupport.h"

#include "project/Windows1252.h"
#include "rulebase/AuthorisedComponents.h"
#include "rulebase/AuthorisedReferences.h"
#include "rulebase/CategoryItem.h"
#include "rulebase/CategoryList.h"
#include "rulebase/CodingConvention.h"
#include "rulebase/NamingConvention.h"
#include "rulebase/Report.h"
#include "rulebase/RuleLists.h"
#include "rulebase/Rulebase.h"
#include "rulebase/TableItem.h"
#include "rulebase/TagItem.h"
#include "rulebase/UnauthorisedKeyword.h"
#include "rulebase/ViolationDefinition.h"

#include "support/TestEnvironment.h"

namespace DocTestSupport {

namespace {

std::shared_ptr<CategoryItem>
category(Rulebase &rulebase, const QString &title, const QString &description)
{
    auto item = std::make_shared<CategoryItem>();
    item->setTitle(title);
    item->setDescription(description);
    rulebase.CategoryList()->Add(item, true);
    return item;
}

template<typename Rule>
std::shared_ptr<Rule> rule(Rulebase &rulebase,
                           const QString &title,
                           const QString &description,
                           qint32 categoryID,
                           qint32 severity,
                           qint16 impact)
{
    auto item = std::make_shared<Rule>();
    item->setTitle(title);
    item->setDescription(description);
    item->setCategoryID(categoryID);
    item->ViolationDefinition()->setSeverity(severity);
    item->ViolationDefinition()->setImpact(impact);
    rulebase.RuleLists()->AddConvention(item, true);
    return item;
}

void tag(ObjectKeyedArrayList<TagItem> &list,
         const QString &name,
         const QString &value,
         const QString &description,
         const QString &example)
{
    auto item = std::make_shared<TagItem>();
    item->setTagName(name);
    item->setTagValue(value);
    item->setTagDescription(description);
    item->setTagExample(example);
    list.Add(name, item, false, true);
}

std::shared_ptr<TableItem>
table(qint32 type, const QString &key, const QString &title, const QString &text)
{
    auto item = std::make_shared<TableItem>();
    item->setTableType(type);
    item->setTableKey(key);
    item->setTableTitle(title);
    item->setTableText(text);
    return item;
}

} // namespace

std::shared_ptr<Rulebase> smallRulebase(const QString &folder)
{
    auto rulebase = std::make_shared<Rulebase>();
    rulebase->setTitle(QStringLiteral("Depot Coding Standards"));
    rulebase->setVersion(QStringLiteral("2.1.7"));
    rulebase->setDescription(QStringLiteral("Standards of the depot team."));
    rulebase->setArrayTag(QStringLiteral("a"));
    rulebase->setFilename(folder + QStringLiteral("/Depot.qrb"));

    const auto errors = category(*rulebase,
                                 QStringLiteral("Error Handling"),
                                 QStringLiteral("Trapping and logging of errors."));
    const auto naming
        = category(*rulebase, QStringLiteral("Naming & Style"), QStringLiteral("Names."));
    const auto empty = category(*rulebase, QStringLiteral("Empty"), QString());

    const auto handler
        = rule<CodingConvention>(*rulebase,
                                 QStringLiteral("Error handler required"),
                                 QStringLiteral("Every public procedure has an error handler."),
                                 errors->ID(),
                                 1,
                                 500);
    const auto resume
        = rule<UnauthorisedKeyword>(*rulebase,
                                    QStringLiteral("No Resume Next"),
                                    QStringLiteral("<b>On Error Resume Next</b> hides errors."),
                                    errors->ID(),
                                    99,
                                    250);
    const auto prefix = rule<NamingConvention>(*rulebase,
                                               QStringLiteral("Form prefix"),
                                               QStringLiteral("Forms start with frm."),
                                               naming->ID(),
                                               3,
                                               10);

    auto &controlTags = *rulebase->ControlTags();
    controlTags.Clear();
    tag(controlTags,
        QStringLiteral("VB.TextBox"),
        QStringLiteral("txt"),
        QStringLiteral("Text box"),
        QStringLiteral("txtName"));
    tag(controlTags,
        QStringLiteral("VB.CommandButton"),
        QStringLiteral("cmd"),
        QString(),
        QString());
    auto &dataTypeTags = *rulebase->DataTypeTags();
    dataTypeTags.Clear();
    tag(dataTypeTags,
        QStringLiteral("String"),
        QStringLiteral("s"),
        QString(),
        QStringLiteral("sName"));
    tag(dataTypeTags,
        QStringLiteral("Long"),
        QStringLiteral("l"),
        QString(),
        QStringLiteral("lCount"));
    auto &scopeTags = *rulebase->ScopeTags();
    scopeTags.Clear();
    tag(scopeTags,
        QStringLiteral("Module"),
        QStringLiteral("m"),
        QString(),
        QStringLiteral("msName"));
    tag(scopeTags, QStringLiteral("Global"), QStringLiteral("g"), QString(), QString());

    rulebase->AuthorisedComponents()->Add(QStringLiteral("{B-GUID}"),
                                          QStringLiteral("mscomctl.ocx"),
                                          QStringLiteral("2.0"),
                                          QString());
    rulebase->AuthorisedComponents()->Add(QStringLiteral("{A-GUID}"),
                                          QStringLiteral("Grid.ocx"),
                                          QStringLiteral("1.0|1.1"),
                                          QString());
    rulebase->AuthorisedReferences()->Add(QStringLiteral("{D-GUID}"),
                                          QStringLiteral("Scripting Runtime"),
                                          QStringLiteral("scrrun.dll"),
                                          QStringLiteral("1.0"),
                                          QString());
    rulebase->AuthorisedReferences()->Add(QStringLiteral("{C-GUID}"),
                                          QStringLiteral("ADO 2.8"),
                                          QStringLiteral("msado15.dll"),
                                          QString(),
                                          QString());

    auto &sections = *rulebase->Report()->Sections();
    const auto errorsPage = std::make_shared<CategoryItem>();
    errorsPage->setTitle(errors->Title());
    errorsPage->setDescription(errors->Description());
    errorsPage->setID(errors->ID());
    // The plan's order, not the rules' ids.
    errorsPage->CategoryRules()->Add(resume);
    errorsPage->CategoryRules()->Add(handler);
    sections.Add(errorsPage);
    const auto namingPage = std::make_shared<CategoryItem>();
    namingPage->setTitle(naming->Title());
    namingPage->setDescription(naming->Description());
    namingPage->setID(naming->ID());
    namingPage->CategoryRules()->Add(prefix);
    sections.Add(namingPage);
    const auto emptyPage = std::make_shared<CategoryItem>();
    emptyPage->setTitle(empty->Title());
    emptyPage->setID(empty->ID());
    sections.Add(emptyPage);
    sections.Add(table(
        0, QStringLiteral("1T"), QStringLiteral("Control Tags"), QStringLiteral("Control tags.")));
    sections.Add(table(
        1, QStringLiteral("2T"), QStringLiteral("Data Type Tags"), QStringLiteral("Data tags.")));
    sections.Add(table(
        2, QStringLiteral("3T"), QStringLiteral("Scope Tags"), QStringLiteral("Scope tags.")));
    sections.Add(table(3,
                       QStringLiteral("4T"),
                       QStringLiteral("Authorised Components"),
                       QStringLiteral("Components.")));
    sections.Add(table(4,
                       QStringLiteral("5T"),
                       QStringLiteral("Authorised References"),
                       QStringLiteral("References.")));
    sections.Add(table(5, QStringLiteral("6T"), QStringLiteral("Severity Details"), QString()));
    return rulebase;
}

QDate publishedDate()
{
    return QDate(2024, 3, 5);
}

QString organisation()
{
    return QStringLiteral("Tarnwick Freight");
}

QString readDocument(const QString &filename)
{
    return Windows1252::decode(TestEnvironment::readFile(filename));
}

} // namespace DocTestSupport
