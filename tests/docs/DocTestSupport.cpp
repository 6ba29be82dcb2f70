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

using namespace Qt::StringLiterals;

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

// A category of the plan: a copy of the rulebase's category with its rules in plan order.
std::shared_ptr<CategoryItem> page(const CategoryItem &category,
                                   std::initializer_list<std::shared_ptr<IRule>> rules)
{
    auto item = std::make_shared<CategoryItem>();
    item->setTitle(category.Title());
    item->setDescription(category.Description());
    item->setID(category.ID());
    for (const auto &rule : rules)
        item->CategoryRules()->Add(rule);
    return item;
}

} // namespace

std::shared_ptr<Rulebase> smallRulebase(const QString &folder)
{
    auto rulebase = std::make_shared<Rulebase>();
    rulebase->setTitle(u"Depot Coding Standards"_s);
    rulebase->setVersion(u"2.1.7"_s);
    rulebase->setDescription(u"Standards of the depot team."_s);
    rulebase->setArrayTag(u"a"_s);
    rulebase->setFilename(folder + u"/Depot.qrb"_s);

    const auto errors
        = category(*rulebase, u"Error Handling"_s, u"Trapping and logging of errors."_s);
    const auto naming = category(*rulebase, u"Naming & Style"_s, u"Names."_s);
    const auto empty = category(*rulebase, u"Empty"_s, QString());

    const auto handler = rule<CodingConvention>(*rulebase,
                                                u"Error handler required"_s,
                                                u"Every public procedure has an error handler."_s,
                                                errors->ID(),
                                                1,
                                                500);
    const auto resume = rule<UnauthorisedKeyword>(*rulebase,
                                                  u"No Resume Next"_s,
                                                  u"<b>On Error Resume Next</b> hides errors."_s,
                                                  errors->ID(),
                                                  99,
                                                  250);
    const auto prefix = rule<NamingConvention>(
        *rulebase, u"Form prefix"_s, u"Forms start with frm."_s, naming->ID(), 3, 10);

    auto &controlTags = *rulebase->ControlTags();
    controlTags.Clear();
    tag(controlTags, u"VB.TextBox"_s, u"txt"_s, u"Text box"_s, u"txtName"_s);
    tag(controlTags, u"VB.CommandButton"_s, u"cmd"_s, QString(), QString());
    auto &dataTypeTags = *rulebase->DataTypeTags();
    dataTypeTags.Clear();
    tag(dataTypeTags, u"String"_s, u"s"_s, QString(), u"sName"_s);
    tag(dataTypeTags, u"Long"_s, u"l"_s, QString(), u"lCount"_s);
    auto &scopeTags = *rulebase->ScopeTags();
    scopeTags.Clear();
    tag(scopeTags, u"Module"_s, u"m"_s, QString(), u"msName"_s);
    tag(scopeTags, u"Global"_s, u"g"_s, QString(), QString());

    rulebase->AuthorisedComponents()->Add(u"{B-GUID}"_s, u"mscomctl.ocx"_s, u"2.0"_s, QString());
    rulebase->AuthorisedComponents()->Add(u"{A-GUID}"_s, u"Grid.ocx"_s, u"1.0|1.1"_s, QString());
    rulebase->AuthorisedReferences()->Add(
        u"{D-GUID}"_s, u"Scripting Runtime"_s, u"scrrun.dll"_s, u"1.0"_s, QString());
    rulebase->AuthorisedReferences()->Add(
        u"{C-GUID}"_s, u"ADO 2.8"_s, u"msado15.dll"_s, QString(), QString());

    auto &sections = *rulebase->Report()->Sections();
    // The plan's order, not the rules' ids.
    sections.Add(page(*errors, {resume, handler}));
    sections.Add(page(*naming, {prefix}));
    sections.Add(page(*empty, {}));
    sections.Add(table(0, u"1T"_s, u"Control Tags"_s, u"Control tags."_s));
    sections.Add(table(1, u"2T"_s, u"Data Type Tags"_s, u"Data tags."_s));
    sections.Add(table(2, u"3T"_s, u"Scope Tags"_s, u"Scope tags."_s));
    sections.Add(table(3, u"4T"_s, u"Authorised Components"_s, u"Components."_s));
    sections.Add(table(4, u"5T"_s, u"Authorised References"_s, u"References."_s));
    sections.Add(table(5, u"6T"_s, u"Severity Details"_s, QString()));
    return rulebase;
}

QDate publishedDate()
{
    return QDate(2024, 3, 5);
}

QString organisation()
{
    return u"Tarnwick Freight"_s;
}

QString readDocument(const QString &filename)
{
    return Windows1252::decode(TestEnvironment::readFile(filename));
}

} // namespace DocTestSupport
