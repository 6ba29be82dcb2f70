#include "PreviewTestSupport.h"

#include "collections/ObjectKeyedArrayList.h"
#include "preview/CatalogueObject.h"
#include "preview/DeclaredObject.h"
#include "preview/NameChecker.h"
#include "preview/PatternCache.h"
#include "preview/TagLookup.h"
#include "rulebase/NamingConvention.h"
#include "rulebase/Rulebase.h"
#include "rulebase/TagItem.h"

#include <gtest/gtest.h>

#include <functional>

using namespace Qt::StringLiterals;

namespace {

namespace CO = CatalogueObject;
using S = DeclaredScope;
using Items = std::initializer_list<std::pair<qint32, const char *>>;

// PSType
constexpr qint32 Literal = 1, ControlTag = 2, DataTypeTag = 3, ScopeTag = 4, Workfield = 5,
                 ArrayTag = 6;

std::shared_ptr<const QHash<QString, QString>> properties(QHash<QString, QString> values)
{
    return std::make_shared<const QHash<QString, QString>>(std::move(values));
}

} // namespace

// Each kind of prefix and suffix item, the body's pattern and limits, the case rule, the
// exclusion list and the property a convention checks; and what it can't decide.
TEST(NameChecker, AppliesEveryPartOfAConventionAndNeverGuessesWhatOnlyItsConditionKnows)
{
    Rulebase rulebase;
    const std::pair<const char *, const char *> dataTypeTags[]
        = {{"String", "str"}, {"Long", "lng"}, {"(Classes)", "o"}, {"(Controls)", "ctl"}};
    for (const auto &[name, value] : dataTypeTags)
        rulebase.DataTypeTags()->Item(QLatin1String(name))->setTagValue(QLatin1String(value));
    rulebase.ScopeTags()->Item(u"Private (Module level)"_s)->setTagValue(u"m"_s);
    rulebase.setArrayTag(u"a"_s);

    const auto variable
        = [](const char *name, const char *type, S scope = S::Local, bool array = false) {
              return DeclaredObject{.objectType = CO::LocalVariable,
                                    .name = QString::fromUtf8(name),
                                    .scope = scope,
                                    .dataType = QLatin1String(type),
                                    .isArray = array};
          };
    const auto control = [](const char *name, const char *progID) {
        return DeclaredObject{.objectType = CO::Control,
                              .name = QLatin1String(name),
                              .progID = QLatin1String(progID)};
    };
    auto body = [](const char *pattern, qint16 min = 0, qint16 max = 0, bool caseSensitive = true) {
        return [=](NamingConvention &c) {
            c.setBodyActive(true);
            c.setBodyPattern(QLatin1String(pattern));
            c.setMinBodyLength(min);
            c.setMaxBodyLength(max);
            c.setCaseSensitive(caseSensitive);
        };
    };

    PatternCache patterns;
    TagLookup tags(rulebase);
    tags.learn(DeclaredObject{.objectType = CO::ClassFile, .name = u"cInvoice"_s});
    const auto property = [](int type, const char *name) {
        return [=](NamingConvention &c) {
            c.setPropertyType(type);
            c.setPropertyName(QLatin1String(name));
        };
    };
    const auto condition = [](NamingConvention &c) { c.setCondition(u"Sub Main\nEnd Sub"_s); };
    const auto exclusions = [](NamingConvention &c) { c.setExclusionList(u"hWnd; i"_s); };
    const DeclaredObject form{.objectType = CO::NonMDIFormFile,
                              .name = u"frmMain"_s,
                              .properties = properties({{u"filename"_s, u"Main.frm"_s}})};
    const DeclaredObject project{
        .objectType = CO::Project, .name = u"Kinds"_s, .properties = properties({})};
    const DeclaredObject constant{
        .objectType = CO::PrivateConst, .name = u"lngX"_s, .dataTypeUnknown = true};

    // The outcome and its message; a compiler's words after the message may vary, so they go.
    struct Case
    {
        const char *expected;
        struct
        {
            qint32 type;
            Items prefix, suffix;
            DeclaredObject object;
        } given;
        std::function<void(NamingConvention &)> adjust = {};
    };
    const Case cases[] = {
        {"Pass", {CO::Variable, {{Literal, "m_"}}, {}, variable("m_count", "Long")}},
        {"Violation expected prefix 'm_'",
         {CO::Variable, {{Literal, "m_"}}, {}, variable("count", "Long")}},
        {"Pass", {CO::Variable, {{Literal, "g[A-Z]"}}, {}, variable("gCount", "Long")}},
        {"Violation expected prefix matching 'g[A-Z]'",
         {CO::Variable, {{Literal, "g[A-Z]"}}, {}, variable("gcount", "Long")}},
        {"Violation expected prefix 'str' for a String",
         {CO::Variable, {{DataTypeTag, ""}}, {}, variable("sName", "String")}},
        {"Violation expected prefix 'o' for a Core.cInvoice (Classes)",
         {CO::Variable, {{DataTypeTag, ""}}, {}, variable("invoice", "Core.cInvoice")}},
        {"Pass", {CO::Variable, {{DataTypeTag, ""}}, {}, variable("ctlName", "TextBox")}},
        {"Pass",
         {CO::Variable,
          {{DataTypeTag, ""}, {Literal, "x"}},
          {},
          variable("xThing", "ADODB.Recordset")}},
        {"Violation expected prefix 'mstr' for scope Private (Module level), a String",
         {CO::Variable,
          {{ScopeTag, ""}, {DataTypeTag, ""}},
          {},
          variable("strmName", "String", S::Private)}},
        {"Pass",
         {CO::Variable,
          {{ArrayTag, ""}, {DataTypeTag, ""}},
          {},
          variable("alngItems", "Long", S::Local, true)}},
        {"Violation expected prefix 'lng' for a Long",
         {CO::Variable, {{ArrayTag, ""}, {DataTypeTag, ""}}, {}, variable("alngItem", "Long")}},
        {"Violation expected prefix 'txt' for a VB.TextBox",
         {CO::Control, {{ControlTag, ""}}, {}, control("Name1", "VB.TextBox")}},
        {"Pass [unknown control]",
         {CO::Control, {{ControlTag, ""}}, {}, control("ctlGizmo", "Acme.Gizmo")}},
        {"NotPreviewed not previewed (needs its condition)",
         {CO::Variable, {{Workfield, "Prefix"}}, {}, variable("x", "Long")}},
        {"NotPreviewed not previewed (needs its condition)",
         {CO::Variable, {{Literal, "m"}}, {}, variable("x", "Long")},
         condition},
        {"Pass",
         {CO::Variable,
          {},
          {{Literal, "Col"}, {Literal, "s"}},
          variable("itemsCol", "Collection")}},
        {"Violation expected suffix 'sCol'",
         {CO::Variable, {}, {{Literal, "Col"}, {Literal, "s"}}, variable("itemCol", "Collection")}},
        {"Pass",
         {CO::Variable, {{Literal, "M_"}}, {}, variable("m_count", "Long")},
         body("^[A-Z]", 0, 0, false)},
        {"Violation body 'count' does not match the pattern '^[A-Z]'",
         {CO::Variable, {{Literal, "m_"}}, {}, variable("m_count", "Long")},
         body("^[A-Z]")},
        {"Violation body 'Ab' is shorter than 3 characters",
         {CO::Variable, {{Literal, "m_"}}, {}, variable("m_Ab", "Long")},
         body("", 3, 5)},
        {"Violation body 'Abcdef' is longer than 5 characters",
         {CO::Variable, {{Literal, "m_"}}, {}, variable("m_Abcdef", "Long")},
         body("", 3, 5)},
        {"Excluded", {CO::Variable, {{Literal, "m_"}}, {}, variable("I", "Long")}, exclusions},
        {"Violation expected prefix 'frm'",
         {CO::File, {{Literal, "frm"}}, {}, form},
         property(16, "Filename")},
        {"NoValue", {CO::Project, {{Literal, "KV"}}, {}, project}, property(13, "Description")},
        {"NotPreviewed not previewed (the preview does not read the property 'DataType')",
         {CO::Variable, {{Literal, "x"}}, {}, variable("x", "Long")},
         property(9, "DataType")},
        {"NotPreviewed not previewed (the constant's data type depends on its expression)",
         {CO::Const, {{DataTypeTag, ""}}, {}, constant}},
        {"NotPreviewed not previewed (the prefix pattern does not compile",
         {CO::Variable, {{Literal, "m("}}, {}, variable("m_x", "Long")}},
    };
    const char *const outcomes[] = {"Pass", "Excluded", "NoValue", "Violation", "NotPreviewed"};
    for (const Case &c : cases) {
        auto convention = namingConvention(c.given.type, c.given.prefix, c.given.suffix);
        if (c.adjust)
            c.adjust(*convention);
        const auto result = NameChecker(convention, patterns).check(c.given.object, tags);
        const QString message = result.message.section(u": "_s, 0, 0);
        EXPECT_EQ((QLatin1String(outcomes[int(result.outcome)]) + u' ' + message).trimmed()
                      + (result.unknownControl ? u" [unknown control]"_s : QString()),
                  QString::fromUtf8(c.expected))
            << c.given.object.name.toStdString();
    }

    // With control tags as data type tags, a variable of a control class takes the control's.
    rulebase.setUseCTagsAsDTTags(true);
    const TagLookup controlTags(rulebase);
    const NameChecker checker(namingConvention(CO::Variable, {{DataTypeTag, ""}}), patterns);
    EXPECT_EQ(checker.check(variable("txtName", "TextBox"), controlTags).outcome,
              NameChecker::Outcome::Pass);
    EXPECT_EQ(checker.check(variable("ctlName", "TextBox"), controlTags).message,
              u"expected prefix 'txt' for a TextBox"_s);
}
