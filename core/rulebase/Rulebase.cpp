#include "rulebase/Rulebase.h"

#include "platform/FileUtils.h"
#include "rulebase/AuthorisedComponents.h"
#include "rulebase/AuthorisedReferences.h"
#include "rulebase/CategoryList.h"
#include "rulebase/DefaultViolations.h"
#include "rulebase/Report.h"
#include "rulebase/RuleLists.h"
#include "rulebase/SeverityItem.h"
#include "rulebase/TagItem.h"

namespace {

constexpr qint32 toleranceEntries = 6;

using TagList = ObjectKeyedArrayList<TagItem>;

struct DefaultTag
{
    const char *name;
    const char *value;
    const char *description;
};

// The order is part of the defaults: "Single" before "Object", "Byte" before "Boolean".
const char *const scopeTagNames[] = {"Public (Global)",
                                     "Friend",
                                     "Private (Module level)",
                                     "Local",
                                     "Local (Static)",
                                     "ByVal Argument",
                                     "ByRef Argument"};

const char *const dataTypeTagNames[] = {"(Classes)",
                                        "(Controls)",
                                        "(Designers)",
                                        "(Enumerations)",
                                        "(Forms)",
                                        "(MDI Forms)",
                                        "(Property Pages)",
                                        "(User Controls)",
                                        "(User-Defined Types)",
                                        "(User Documents)",
                                        "Any",
                                        "Byte",
                                        "Boolean",
                                        "Collection",
                                        "Control",
                                        "Currency",
                                        "Date",
                                        "Double",
                                        "Form",
                                        "Integer",
                                        "Long",
                                        "Single",
                                        "Object",
                                        "String",
                                        "Variant"};

// "(Unknown ProgID)" tags a control whose ProgID no other entry names.
const DefaultTag controlTags[] = {
    {"(Unknown ProgID)", "ctl", ""},
    {"VB.CheckBox", "chk", "VB Check Box Control"},
    {"VB.ComboBox", "cbo", "VB Combo Box Control"},
    {"VB.CommandButton", "cmd", "VB Command Button Control"},
    {"VB.Data", "data", "VB Data Control"},
    {"VB.DirListBox", "dir", "VB Directory List Box Control"},
    {"VB.DriveListBox", "drv", "VB Drive List Box Control"},
    {"VB.FileListBox", "file", "VB File List Box Control"},
    {"VB.Form", "frm", "VB Form"},
    {"VB.Frame", "fra", "VB Frame Control"},
    {"VB.HScrollBar", "hsb", "VB Horizontal Scroll Bar Control"},
    {"VB.Image", "img", "VB Image Control"},
    {"VB.Label", "lbl", "VB Label Control"},
    {"VB.Line", "lin", "VB Line Control"},
    {"VB.ListBox", "lst", "VB List Box Control"},
    {"VB.Menu", "mnu", "VB Menu Control"},
    {"VB.OLE", "ole", "VB OLE Control"},
    {"VB.OptionButton", "opt", "VB Option Button Control"},
    {"VB.PictureBox", "pic", "VB Picture Box Control"},
    {"VB.Shape", "shape", "VB Shape Control"},
    {"VB.TextBox", "txt", "VB Text Box Control"},
    {"VB.Timer", "tmr", "VB Timer Control"},
    {"VB.VScrollBar", "vsb", "VB Vertical Scroll Bar Control"},
};

struct DefaultSeverity
{
    qint32 level;
    const char *title;
    const char *levelText;
    qint32 colour;
    qint16 impact;
    const char *description;
};

// The descriptions are kept to the letter, misspellings included: files and documents made
// with them say so.
const DefaultSeverity severities[] = {
    {1,
     "Critical",
     "Highest",
     14,
     900,
     "Items flagged with 'Critcial' severity are those items that may potentially cause your code "
     "to operate incorrectly, or be extremely difficult to modify and maintain in the future.  "
     "Either way, all 'Critical' violations must be corrected."},
    {2,
     "High",
     "High",
     16,
     750,
     "Items flagged with 'High' severity are those items that make your code extremely difficult "
     "to modify and maintain in the future. They must be fixed."},
    {3,
     "Medium",
     "Medium",
     2,
     500,
     "Items flagged with 'Medium' severity are those items make your code difficult to modify and "
     "maintain in the future. They should be fixed."},
    {4,
     "Low",
     "Low",
     11,
     250,
     "Items flagged with 'Low' severity are those items make your code non-compliant, however, it "
     "is accepted that they may have little impact with respect to future modification and "
     "maintainenance. They should however be fixed, time permitting."},
    {5,
     "Info",
     "Information",
     15,
     0,
     "Items flagged with 'Information' severity, are not necessarily standards violations, they "
     "could be just general information about projects, modules and methods, or they could be "
     "items that are flagged for close scrutiny during a manual code review."},
};

void addDefaultTag(TagList &list, const char *name, const char *value, const char *description)
{
    auto tag = std::make_shared<TagItem>();
    tag->setTagName(QString::fromUtf8(name));
    tag->setTagValue(QString::fromUtf8(value));
    tag->setTagDescription(QString::fromUtf8(description));
    tag->setLocked(true);
    tag->setDirty(false);
    list.Add(tag->TagName(), tag, false, false);
}

template<typename Visit>
void forEachTag(const TagList &list, Visit visit)
{
    for (qint32 i = 1; i <= list.Count(); ++i)
        visit(*list.Item(i));
}

} // namespace

Rulebase::Rulebase()
    : m_authorisedReferences(std::make_shared<::AuthorisedReferences>())
    , m_authorisedComponents(std::make_shared<::AuthorisedComponents>())
    , m_ruleLists(std::make_shared<::RuleLists>())
    , m_controlTags(std::make_shared<TagList>())
    , m_dataTypeTags(std::make_shared<TagList>())
    , m_scopeTags(std::make_shared<TagList>())
    , m_defaultViolations(std::make_shared<::DefaultViolations>())
    , m_categoryList(std::make_shared<::CategoryList>())
    , m_severityList(std::make_shared<ObjectKeyedArrayList<SeverityItem>>())
    , m_report(std::make_shared<::Report>())
{
    DefaultControlTags();
    DefaultDataTypeTags();
    DefaultScopeTags();
    DefaultSeverityList();
    for (qint32 i = 0; i < toleranceEntries; ++i) {
        m_toleranceCount.Add(-1);
        m_toleranceImpact.Add(-1);
    }
    // A new rulebase is not dirty.
    m_defaultViolations->setDirty(false);
    m_controlTags->setDirty(false);
    m_dataTypeTags->setDirty(false);
    m_scopeTags->setDirty(false);
    m_severityList->setDirty(false);
    m_toleranceCount.setDirty(false);
    m_toleranceImpact.setDirty(false);
}

Rulebase::~Rulebase() = default;

QString Rulebase::FileTitle() const
{
    if (m_filename.isEmpty())
        return QStringLiteral("[Untitled]");
    return FileUtils::FilenameFromFullPathName(m_filename);
}

bool Rulebase::Dirty() const
{
    if (m_dirty || m_authorisedComponents->Dirty() || m_authorisedReferences->Dirty()
        || m_ruleLists->Dirty() || m_categoryList->Dirty() || m_severityList->Dirty()
        || m_toleranceCount.Dirty() || m_toleranceImpact.Dirty() || m_report->Dirty()
        || m_defaultViolations->Dirty())
        return true;
    // The tag sets' own flags are not asked: a change shows through the items.
    bool dirty = false;
    for (const auto &tags : {m_controlTags, m_dataTypeTags, m_scopeTags})
        forEachTag(*tags, [&](const TagItem &tag) { dirty = dirty || tag.Dirty(); });
    return dirty;
}

void Rulebase::setDirty(bool dirty)
{
    m_dirty = dirty;
    m_authorisedComponents->setDirty(dirty);
    m_authorisedReferences->setDirty(dirty);
    m_ruleLists->setDirty(dirty);
    m_categoryList->setDirty(dirty);
    m_severityList->setDirty(dirty);
    m_toleranceCount.setDirty(dirty);
    m_toleranceImpact.setDirty(dirty);
    m_report->setDirty(dirty);
    m_defaultViolations->setDirty(dirty);
    for (const auto &tags : {m_controlTags, m_dataTypeTags, m_scopeTags})
        forEachTag(*tags, [&](TagItem &tag) { tag.setDirty(dirty); });
}

void Rulebase::setTitle(const QString &title)
{
    m_title = title;
    m_dirty = true;
}

void Rulebase::setVersion(const QString &version)
{
    m_version = version;
    m_dirty = true;
}

void Rulebase::setDescription(const QString &description)
{
    m_description = description;
    m_dirty = true;
}

void Rulebase::setAutoIncrementVersion(bool autoIncrement)
{
    m_autoIncrementVersion = autoIncrement;
    m_dirty = true;
}

void Rulebase::setUnknownControlViolation(bool raise)
{
    m_unknownControlViolation = raise;
    m_dirty = true;
}

qint32 Rulebase::RuleCount() const
{
    return m_authorisedComponents->Count() + m_authorisedReferences->Count()
           + m_ruleLists->AllConventions()->Count();
}

void Rulebase::setUseCTagsAsDTTags(bool use)
{
    m_useCTagsAsDTTags = use;
    m_dirty = true;
}

void Rulebase::setArrayTag(const QString &tag)
{
    m_arrayTag = tag;
    m_dirty = true;
}

void Rulebase::setTolerancePercentageComments(qint32 value)
{
    m_tolerancePercentageComments = value;
    m_dirty = true;
}

void Rulebase::setToleranceCyclomaticComplexity(qint32 value)
{
    m_toleranceCyclomaticComplexity = value;
    m_dirty = true;
}

void Rulebase::DefaultScopeTags()
{
    for (const char *name : scopeTagNames)
        addDefaultTag(*m_scopeTags, name, "", "");
}

void Rulebase::DefaultDataTypeTags()
{
    for (const char *name : dataTypeTagNames)
        addDefaultTag(*m_dataTypeTags, name, "", "");
}

void Rulebase::DefaultControlTags()
{
    for (const DefaultTag &tag : controlTags)
        addDefaultTag(*m_controlTags, tag.name, tag.value, tag.description);
}

void Rulebase::DefaultSeverityList()
{
    for (const DefaultSeverity &level : severities) {
        auto item = std::make_shared<SeverityItem>();
        item->setSeverityLevel(level.level);
        item->setKey(QString::number(level.level) + QStringLiteral("Key"));
        item->setTitle(QString::fromUtf8(level.title));
        item->setSeverityLevelText(QString::fromUtf8(level.levelText));
        item->setColour(level.colour);
        item->setImpact(level.impact);
        item->setDescription(QString::fromUtf8(level.description));
        m_severityList->Add(item->Key(), item, true, false);
    }
}
