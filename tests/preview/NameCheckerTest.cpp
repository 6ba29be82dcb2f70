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
    // The outcome and its message; a compiler's words after the message may vary, so they go.
    const auto check = [&](qint32 type,
                           Items prefix,
                           Items suffix,
                           const DeclaredObject &object,
                           const std::function<void(NamingConvention &)> &adjust = {}) {
        auto convention = namingConvention(type, prefix, suffix);
        if (adjust)
            adjust(*convention);
        const NameChecker::Result result = NameChecker(convention, patterns).check(object, tags);
        const char *const outcomes[] = {"Pass", "Excluded", "NoValue", "Violation", "NotPreviewed"};
        const QString message = result.message.section(u": "_s, 0, 0);
        return (QLatin1String(outcomes[int(result.outcome)]) + u' ' + message).trimmed()
               + (result.unknownControl ? u" [unknown control]"_s : QString());
    };
    EXPECT_EQ(check(CO::Variable, {{Literal, "m_"}}, {}, variable("m_count", "Long")), u"Pass"_s);
    EXPECT_EQ(check(CO::Variable, {{Literal, "m_"}}, {}, variable("count", "Long")),
              u"Violation expected prefix 'm_'"_s);
    EXPECT_EQ(check(CO::Variable, {{Literal, "g[A-Z]"}}, {}, variable("gCount", "Long")),
              u"Pass"_s);
    EXPECT_EQ(check(CO::Variable, {{Literal, "g[A-Z]"}}, {}, variable("gcount", "Long")),
              u"Violation expected prefix matching 'g[A-Z]'"_s);
    EXPECT_EQ(check(CO::Variable, {{DataTypeTag, ""}}, {}, variable("sName", "String")),
              u"Violation expected prefix 'str' for a String"_s);
    EXPECT_EQ(check(CO::Variable, {{DataTypeTag, ""}}, {}, variable("invoice", "Core.cInvoice")),
              u"Violation expected prefix 'o' for a Core.cInvoice (Classes)"_s);
    EXPECT_EQ(check(CO::Variable, {{DataTypeTag, ""}}, {}, variable("ctlName", "TextBox")),
              u"Pass"_s);
    EXPECT_EQ(check(CO::Variable,
                    {{DataTypeTag, ""}, {Literal, "x"}},
                    {},
                    variable("xThing", "ADODB.Recordset")),
              u"Pass"_s);
    EXPECT_EQ(check(CO::Variable,
                    {{ScopeTag, ""}, {DataTypeTag, ""}},
                    {},
                    variable("strmName", "String", S::Private)),
              u"Violation expected prefix 'mstr' for scope Private (Module level), a String"_s);
    EXPECT_EQ(check(CO::Variable,
                    {{ArrayTag, ""}, {DataTypeTag, ""}},
                    {},
                    variable("alngItems", "Long", S::Local, true)),
              u"Pass"_s);
    EXPECT_EQ(
        check(CO::Variable, {{ArrayTag, ""}, {DataTypeTag, ""}}, {}, variable("alngItem", "Long")),
        u"Violation expected prefix 'lng' for a Long"_s);
    EXPECT_EQ(check(CO::Control, {{ControlTag, ""}}, {}, control("Name1", "VB.TextBox")),
              u"Violation expected prefix 'txt' for a VB.TextBox"_s);
    EXPECT_EQ(check(CO::Control, {{ControlTag, ""}}, {}, control("ctlGizmo", "Acme.Gizmo")),
              u"Pass [unknown control]"_s);
    EXPECT_EQ(check(CO::Variable, {{Workfield, "Prefix"}}, {}, variable("x", "Long")),
              u"NotPreviewed not previewed (needs its condition)"_s);
    EXPECT_EQ(check(CO::Variable,
                    {{Literal, "m"}},
                    {},
                    variable("x", "Long"),
                    [](NamingConvention &c) { c.setCondition(u"Sub Main\nEnd Sub"_s); }),
              u"NotPreviewed not previewed (needs its condition)"_s);
    EXPECT_EQ(check(CO::Variable,
                    {},
                    {{Literal, "Col"}, {Literal, "s"}},
                    variable("itemsCol", "Collection")),
              u"Pass"_s);
    EXPECT_EQ(check(CO::Variable,
                    {},
                    {{Literal, "Col"}, {Literal, "s"}},
                    variable("itemCol", "Collection")),
              u"Violation expected suffix 'sCol'"_s);
    EXPECT_EQ(check(CO::Variable,
                    {{Literal, "M_"}},
                    {},
                    variable("m_count", "Long"),
                    body("^[A-Z]", 0, 0, false)),
              u"Pass"_s);
    EXPECT_EQ(
        check(CO::Variable, {{Literal, "m_"}}, {}, variable("m_count", "Long"), body("^[A-Z]")),
        u"Violation body 'count' does not match the pattern '^[A-Z]'"_s);
    EXPECT_EQ(check(CO::Variable, {{Literal, "m_"}}, {}, variable("m_Ab", "Long"), body("", 3, 5)),
              u"Violation body 'Ab' is shorter than 3 characters"_s);
    EXPECT_EQ(
        check(CO::Variable, {{Literal, "m_"}}, {}, variable("m_Abcdef", "Long"), body("", 3, 5)),
        u"Violation body 'Abcdef' is longer than 5 characters"_s);
    EXPECT_EQ(check(CO::Variable,
                    {{Literal, "m_"}},
                    {},
                    variable("I", "Long"),
                    [](NamingConvention &c) { c.setExclusionList(u"hWnd; i"_s); }),
              u"Excluded"_s);
    EXPECT_EQ(check(CO::File,
                    {{Literal, "frm"}},
                    {},
                    DeclaredObject{.objectType = CO::NonMDIFormFile,
                                   .name = u"frmMain"_s,
                                   .properties = properties({{u"filename"_s, u"Main.frm"_s}})},
                    [](NamingConvention &c) {
                        c.setPropertyType(16);
                        c.setPropertyName(u"Filename"_s);
                    }),
              u"Violation expected prefix 'frm'"_s);
    EXPECT_EQ(check(CO::Project,
                    {{Literal, "KV"}},
                    {},
                    DeclaredObject{.objectType = CO::Project,
                                   .name = u"Kinds"_s,
                                   .properties = properties({})},
                    [](NamingConvention &c) {
                        c.setPropertyType(13);
                        c.setPropertyName(u"Description"_s);
                    }),
              u"NoValue"_s);
    EXPECT_EQ(check(CO::Variable,
                    {{Literal, "x"}},
                    {},
                    variable("x", "Long"),
                    [](NamingConvention &c) {
                        c.setPropertyType(9);
                        c.setPropertyName(u"DataType"_s);
                    }),
              u"NotPreviewed not previewed (the preview does not read the property 'DataType')"_s);
    EXPECT_EQ(check(CO::Const,
                    {{DataTypeTag, ""}},
                    {},
                    DeclaredObject{.objectType = CO::PrivateConst,
                                   .name = u"lngX"_s,
                                   .dataTypeUnknown = true}),
              u"NotPreviewed not previewed (the constant's data type depends on its expression)"_s);
    EXPECT_EQ(check(CO::Variable, {{Literal, "m("}}, {}, variable("m_x", "Long")),
              u"NotPreviewed not previewed (the prefix pattern does not compile"_s);

    // With control tags as data type tags, a variable of a control class takes the control's.
    rulebase.setUseCTagsAsDTTags(true);
    const TagLookup controlTags(rulebase);
    const NameChecker checker(namingConvention(CO::Variable, {{DataTypeTag, ""}}), patterns);
    EXPECT_EQ(checker.check(variable("txtName", "TextBox"), controlTags).outcome,
              NameChecker::Outcome::Pass);
    EXPECT_EQ(checker.check(variable("ctlName", "TextBox"), controlTags).message,
              u"expected prefix 'txt' for a TextBox"_s);
}
