#include "editors/TagListForm.h"

#include "editors/TagGridModel.h"
#include "platform/ErrorFrame.h"
#include "platform/TextUtils.h"
#include "platform/UserInterface.h"
#include "rulebase/TagItem.h"

namespace {

constexpr const char *module = "TagList";

std::shared_ptr<TagItem> cloneOf(const TagItem &source)
{
    auto item = std::make_shared<TagItem>();
    item->setLocked(source.Locked());
    item->setTagDescription(source.TagDescription());
    item->setTagExample(source.TagExample());
    item->setTagName(source.TagName());
    item->setTagValue(source.TagValue());
    // The setters above mark the clone; it keeps the flag of what it copies instead.
    item->setDirty(source.Dirty());
    return item;
}

} // namespace

TagListForm::TagListForm()
    : m_grid(std::make_unique<TagGridModel>(*this))
{
}

TagListForm::~TagListForm() = default;

void TagListForm::Initialise(std::shared_ptr<TagList> tagList, qint32 tagType)
{
    m_given = std::move(tagList);
    m_tagType = tagType;
    m_givenUnknownControlViolation = m_unknownControlViolation;
    m_givenUseCTagsAsDTTags = m_useCTagsAsDTTags;
    m_givenArrayTag = m_arrayTag;
    guardedVoid("Initialise", module, [this] { CloneTagList(); });
    m_tab = 0;
    m_current = m_first;
    m_grid->refetch();
}

void TagListForm::addUnder(TagList &list, const std::shared_ptr<TagItem> &item)
{
    list.Add(item->TagName(), item, false, true);
}

void TagListForm::CloneTagList()
{
    m_first = std::make_shared<TagList>();
    m_second = m_tagType == DataTypeTags ? std::make_shared<TagList>() : nullptr;
    if (!m_given)
        return;
    for (qint32 i = 1; i <= m_given->Count(); ++i) {
        const auto item = cloneOf(*m_given->Item(i));
        const bool stereotype = m_second && item->TagName().startsWith(QLatin1Char('('));
        addUnder(stereotype ? *m_second : *m_first, item);
    }
}

bool TagListForm::UnknownControlViolation() const
{
    return m_unknownControlViolation;
}

void TagListForm::setUnknownControlViolation(bool raise)
{
    m_unknownControlViolation = raise;
}

bool TagListForm::UseCTagsAsDTTags() const
{
    return m_useCTagsAsDTTags;
}

void TagListForm::setUseCTagsAsDTTags(bool use)
{
    m_useCTagsAsDTTags = use;
}

QString TagListForm::ArrayTag() const
{
    return m_arrayTag;
}

void TagListForm::setArrayTag(const QString &tag)
{
    m_arrayTag = tag;
}

QString TagListForm::Caption() const
{
    switch (m_tagType) {
    case ControlTags:
        return QStringLiteral("Control Tags");
    case DataTypeTags:
        return QStringLiteral("Data Type Tags");
    default:
        return QStringLiteral("Scope Tags");
    }
}

QList<TagListForm::Field> TagListForm::Fields() const
{
    if (m_tagType == ControlTags)
        return {TagDescription, TagName, TagValue, TagExample, Locked};
    return {TagName, TagValue, TagExample, Locked};
}

QStringList TagListForm::ColumnCaptions() const
{
    switch (m_tagType) {
    case ControlTags:
        return {QStringLiteral("Description"),
                QStringLiteral("ProgID"),
                QStringLiteral("Control Tag"),
                QStringLiteral("Controls"),
                QStringLiteral("Locked")};
    case DataTypeTags:
        return {QStringLiteral("Data Type"),
                QStringLiteral("Data Tag"),
                QStringLiteral("Example"),
                QStringLiteral("Locked")};
    default:
        return {QStringLiteral("Scope"),
                QStringLiteral("Scope Tag"),
                QStringLiteral("Scope Items"),
                QStringLiteral("Locked")};
    }
}

QStringList TagListForm::Tabs() const
{
    if (m_tagType == DataTypeTags)
        return {QStringLiteral("Data Types"), QStringLiteral("Stereotypes")};
    return {};
}

QString TagListForm::OptionCaption() const
{
    switch (m_tagType) {
    case ControlTags:
        return QStringLiteral("&Raise Default Violation For Unknown Control ProgID");
    case DataTypeTags:
        return QStringLiteral("In&clude Control Tags As Additional Data Type Tags");
    default:
        return {};
    }
}

bool TagListForm::Option() const
{
    if (m_tagType == ControlTags)
        return m_unknownControlViolation;
    if (m_tagType == DataTypeTags)
        return m_useCTagsAsDTTags;
    return false;
}

bool TagListForm::SelectTab(int tab)
{
    if (m_tagType != DataTypeTags || tab < 0 || tab > 1)
        return false;
    if (tab == m_tab)
        return true;
    m_tab = tab;
    m_current = tab == 0 ? m_first : m_second;
    m_grid->refetch();
    return true;
}

bool TagListForm::ContainsTag(const QString &name) const
{
    if (!m_current)
        return false;
    // Names may have been edited since their keys were given, so both count.
    if (m_current->Contains(name))
        return true;
    for (qint32 i = 1; i <= m_current->Count(); ++i) {
        if (Text::same(m_current->Item(i)->TagName(), name))
            return true;
    }
    return false;
}

qint32 TagListForm::Insert()
{
    return guarded("cmdInsert_Click", module, 0, [this]() -> qint32 {
        if (!InsertDeleteEnabled() || !m_current)
            return 0;
        QString name;
        do {
            ++m_newItemCounter;
            name = QStringLiteral("New Item") + QString::number(m_newItemCounter);
        } while (ContainsTag(name));
        auto item = std::make_shared<TagItem>();
        item->setTagName(name);
        const qint32 row = m_current->Count() + 1;
        m_grid->beginAdd(row - 1);
        addUnder(*m_current, item);
        m_grid->endAdd();
        return row;
    });
}

bool TagListForm::CanDelete(qint32 row) const
{
    if (!InsertDeleteEnabled() || !m_current || row < 1 || row > m_current->Count())
        return false;
    return !m_current->Item(row)->Locked();
}

void TagListForm::Delete(qint32 row)
{
    if (!CanDelete(row))
        return;
    guardedVoid("grdTags_UnboundDelete", module, [&] {
        m_grid->beginRemove(row - 1);
        m_current->Remove(row);
        m_grid->endRemove();
    });
}

bool TagListForm::NameEditable(qint32 row) const
{
    if (!m_current || row < 1 || row > m_current->Count())
        return false;
    return !m_current->Item(row)->Locked();
}

bool TagListForm::GridIsValid(const QString &name) const
{
    if (m_tagType == ScopeTags || !name.isEmpty())
        return true;
    showWarning(m_tagType == ControlTags ? QStringLiteral("A ProgID must be entered.")
                                         : QStringLiteral("A data type must be entered."));
    return false;
}

void TagListForm::setOption(bool checked)
{
    guardedVoid("chkOption_Click", module, [&] {
        if (m_tagType == DataTypeTags) {
            m_useCTagsAsDTTags = checked;
            return;
        }
        if (m_tagType != ControlTags)
            return;
        m_unknownControlViolation = checked;
        if (checked) {
            // With the default violation raised for unknown controls, no tag stands for them.
            for (qint32 row = 1; row <= m_current->Count(); ++row) {
                if (Text::same(m_current->Item(row)->TagName(), UnknownProgID())) {
                    m_grid->beginRemove(row - 1);
                    m_current->Remove(row);
                    m_grid->endRemove();
                    return;
                }
            }
            return;
        }
        // The entry comes back as built in, not as it was before.
        auto item = std::make_shared<TagItem>();
        item->setLocked(true);
        item->setTagName(UnknownProgID());
        item->setTagValue(QStringLiteral("ctl"));
        item->setDirty(false);
        if (m_current->Contains(item->TagName())) {
            addUnder(*m_current, item); // raises the duplicate-key error
            return;
        }
        m_grid->beginAdd(m_current->Count());
        addUnder(*m_current, item);
        m_grid->endAdd();
    });
}

bool TagListForm::OK()
{
    const bool done = guardedVoid("cmdOK_Click", module, [this] {
        if (!m_given)
            return;
        // The whole set is built aside first: a duplicate name fails here, with the set as it
        // was, rather than halfway through refilling it.
        TagList staged;
        for (const auto &list : {m_first, m_second}) {
            if (!list)
                continue;
            for (qint32 i = 1; i <= list->Count(); ++i)
                addUnder(staged, list->Item(i));
        }
        m_given->Clear();
        for (qint32 i = 1; i <= staged.Count(); ++i)
            addUnder(*m_given, staged.Item(i));
    });
    if (!done)
        return false;
    m_cancelled = false;
    return true;
}

void TagListForm::Cancel()
{
    // Cancel writes nothing: the options the caller copies back are the ones it gave.
    m_unknownControlViolation = m_givenUnknownControlViolation;
    m_useCTagsAsDTTags = m_givenUseCTagsAsDTTags;
    m_arrayTag = m_givenArrayTag;
    m_cancelled = true;
}
