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
using O = NameChecker::Outcome;
using S = DeclaredScope;
using Items = std::initializer_list<std::pair<qint32, const char *>>;

// PSType
constexpr qint32 Literal = 1, ControlTag = 2, DataTypeTag = 3, ScopeTag = 4, Workfield = 5,
                 ArrayTag = 6;

struct Row
{
    const char *what;
    qint32 conventionType;
    Items prefix;
    Items suffix;
    DeclaredObject object;
    O outcome;
    const char *message = "";
    bool unknownControl = false;
    // Applied to the convention before the check.
    std::function<void(NamingConvention &)> adjust = {};
};

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

    const Row rows[] = {
        {"literal", CO::Variable, {{Literal, "m_"}}, {}, variable("m_count", "Long"), O::Pass},
        {"literal missing",
         CO::Variable,
         {{Literal, "m_"}},
         {},
         variable("count", "Long"),
         O::Violation,
         "expected prefix 'm_'"},
        {"pattern", CO::Variable, {{Literal, "g[A-Z]"}}, {}, variable("gCount", "Long"), O::Pass},
        {"pattern missing",
         CO::Variable,
         {{Literal, "g[A-Z]"}},
         {},
         variable("gcount", "Long"),
         O::Violation,
         "expected prefix matching 'g[A-Z]'"},
        {"data type tag",
         CO::Variable,
         {{DataTypeTag, ""}},
         {},
         variable("sName", "String"),
         O::Violation,
         "expected prefix 'str' for a String"},
        {"data type tag of a class of the project",
         CO::Variable,
         {{DataTypeTag, ""}},
         {},
         variable("invoice", "Core.cInvoice"),
         O::Violation,
         "expected prefix 'o' for a Core.cInvoice (Classes)"},
        {"a control class without control tags as data type tags",
         CO::Variable,
         {{DataTypeTag, ""}},
         {},
         variable("ctlName", "TextBox"),
         O::Pass},
        {"an unknown data type has no tag",
         CO::Variable,
         {{DataTypeTag, ""}, {Literal, "x"}},
         {},
         variable("xThing", "ADODB.Recordset"),
         O::Pass},
        {"scope, then data type",
         CO::Variable,
         {{ScopeTag, ""}, {DataTypeTag, ""}},
         {},
         variable("strmName", "String", S::Private),
         O::Violation,
         "expected prefix 'mstr' for scope Private (Module level), a String"},
        {"array tag on an array",
         CO::Variable,
         {{ArrayTag, ""}, {DataTypeTag, ""}},
         {},
         variable("alngItems", "Long", S::Local, true),
         O::Pass},
        {"array tag on no array",
         CO::Variable,
         {{ArrayTag, ""}, {DataTypeTag, ""}},
         {},
         variable("alngItem", "Long"),
         O::Violation,
         "expected prefix 'lng' for a Long"},
        {"control tag",
         CO::Control,
         {{ControlTag, ""}},
         {},
         control("Name1", "VB.TextBox"),
         O::Violation,
         "expected prefix 'txt' for a VB.TextBox"},
        {"unknown ProgID",
         CO::Control,
         {{ControlTag, ""}},
         {},
         control("ctlGizmo", "Acme.Gizmo"),
         O::Pass,
         "",
         true},
        {"workfield",
         CO::Variable,
         {{Workfield, "Prefix"}},
         {},
         variable("x", "Long"),
         O::NotPreviewed,
         "not previewed (needs its condition)"},
        {"condition",
         CO::Variable,
         {{Literal, "m"}},
         {},
         variable("x", "Long"),
         O::NotPreviewed,
         "not previewed (needs its condition)",
         false,
         [](NamingConvention &c) { c.setCondition(u"Sub Main\nEnd Sub"_s); }},
        {"suffix: ends with, preceded by",
         CO::Variable,
         {},
         {{Literal, "Col"}, {Literal, "s"}},
         variable("itemsCol", "Collection"),
         O::Pass},
        {"suffix missing",
         CO::Variable,
         {},
         {{Literal, "Col"}, {Literal, "s"}},
         variable("itemCol", "Collection"),
         O::Violation,
         "expected suffix 'sCol'"},
        {"body pattern ignoring case",
         CO::Variable,
         {{Literal, "M_"}},
         {},
         variable("m_count", "Long"),
         O::Pass,
         "",
         false,
         body("^[A-Z]", 0, 0, false)},
        {"body pattern respecting case",
         CO::Variable,
         {{Literal, "m_"}},
         {},
         variable("m_count", "Long"),
         O::Violation,
         "body 'count' does not match the pattern '^[A-Z]'",
         false,
         body("^[A-Z]")},
        {"body too short",
         CO::Variable,
         {{Literal, "m_"}},
         {},
         variable("m_Ab", "Long"),
         O::Violation,
         "body 'Ab' is shorter than 3 characters",
         false,
         body("", 3, 5)},
        {"body too long",
         CO::Variable,
         {{Literal, "m_"}},
         {},
         variable("m_Abcdef", "Long"),
         O::Violation,
         "body 'Abcdef' is longer than 5 characters",
         false,
         body("", 3, 5)},
        {"excluded",
         CO::Variable,
         {{Literal, "m_"}},
         {},
         variable("I", "Long"),
         O::Excluded,
         "",
         false,
         [](NamingConvention &c) { c.setExclusionList(u"hWnd; i"_s); }},
        {"a file's Filename property",
         CO::File,
         {{Literal, "frm"}},
         {},
         DeclaredObject{.objectType = CO::NonMDIFormFile,
                        .name = u"frmMain"_s,
                        .properties = properties({{u"filename"_s, u"Main.frm"_s}})},
         O::Violation,
         "expected prefix 'frm'",
         false,
         [](NamingConvention &c) {
             c.setPropertyType(16);
             c.setPropertyName(u"Filename"_s);
         }},
        {"a project property it doesn't have",
         CO::Project,
         {{Literal, "KV"}},
         {},
         DeclaredObject{
             .objectType = CO::Project, .name = u"Kinds"_s, .properties = properties({})},
         O::NoValue,
         "",
         false,
         [](NamingConvention &c) {
             c.setPropertyType(13);
             c.setPropertyName(u"Description"_s);
         }},
        {"a property the preview doesn't read",
         CO::Variable,
         {{Literal, "x"}},
         {},
         variable("x", "Long"),
         O::NotPreviewed,
         "not previewed (the preview does not read the property 'DataType')",
         false,
         [](NamingConvention &c) {
             c.setPropertyType(9);
             c.setPropertyName(u"DataType"_s);
         }},
        {"a constant typed by an expression",
         CO::Const,
         {{DataTypeTag, ""}},
         {},
         DeclaredObject{.objectType = CO::PrivateConst, .name = u"lngX"_s, .dataTypeUnknown = true},
         O::NotPreviewed,
         "not previewed (the constant's data type depends on its expression)"},
        {"a pattern that does not compile",
         CO::Variable,
         {{Literal, "m("}},
         {},
         variable("m_x", "Long"),
         O::NotPreviewed,
         "not previewed (the prefix pattern does not compile: "},
    };

    PatternCache patterns;
    TagLookup tags(rulebase);
    tags.learn(DeclaredObject{.objectType = CO::ClassFile, .name = u"cInvoice"_s});
    for (const Row &row : rows) {
        auto convention = namingConvention(row.conventionType, row.prefix, row.suffix);
        if (row.adjust)
            row.adjust(*convention);
        const NameChecker checker(convention, patterns);
        const NameChecker::Result result = checker.check(row.object, tags);
        EXPECT_EQ(result.outcome, row.outcome) << row.what << ": " << result.message.toStdString();
        // A message names the fault; a compiler's words after it may vary.
        if (QByteArray(row.message).isEmpty())
            EXPECT_TRUE(result.message.isEmpty())
                << row.what << ": " << result.message.toStdString();
        else
            EXPECT_TRUE(result.message.startsWith(QString::fromUtf8(row.message)))
                << row.what << ": " << result.message.toStdString();
        EXPECT_EQ(result.unknownControl, row.unknownControl) << row.what;
    }

    // With control tags as data type tags, a variable of a control class takes the control's.
    rulebase.setUseCTagsAsDTTags(true);
    const TagLookup controlTags(rulebase);
    const NameChecker checker(namingConvention(CO::Variable, {{DataTypeTag, ""}}), patterns);
    EXPECT_EQ(checker.check(variable("txtName", "TextBox"), controlTags).outcome, O::Pass);
    EXPECT_EQ(checker.check(variable("ctlName", "TextBox"), controlTags).message,
              u"expected prefix 'txt' for a TextBox"_s);
}
