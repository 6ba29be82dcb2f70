#include "editors/NamingConventionForm.h"

#include "collections/ObjectArrayList.h"
#include "platform/TextUtils.h"
#include "platform/UserInterface.h"
#include "rulebase/NamingConvention.h"
#include "rulebase/PrefixSuffixItem.h"
#include "rulebase/ViolationDefinition.h"
#include "vocabulary/ObjectHelper.h"
#include "vocabulary/ObjectListType.h"

namespace {

struct ObjectRow
{
    qint32 id;
    int indentation;
};

// The objects a naming convention can name, as a tree drawn with indentation.
constexpr ObjectRow namingObjects[] = {
    {1, 0},  {13, 1}, {19, 1}, {20, 1}, {5, 0},  {22, 1}, {26, 1}, {27, 1}, {6, 0},
    {7, 0},  {9, 0},  {10, 1}, {11, 0}, {12, 0}, {38, 1}, {39, 1}, {36, 1}, {47, 2},
    {48, 2}, {49, 2}, {37, 1}, {40, 1}, {41, 1}, {42, 1}, {15, 0}, {17, 0}, {46, 1},
    {45, 1}, {44, 1}, {18, 0}, {24, 0}, {25, 1}, {28, 0}, {43, 1}, {29, 2}, {30, 2},
    {31, 2}, {32, 2}, {33, 1}, {34, 2}, {35, 2},
};

QString key(qint32 id)
{
    return QString::number(id) + QStringLiteral("Key");
}

} // namespace

const char *const NamingConventionForm::caption = "Naming Convention";

QString NamingConventionForm::PSTypeText(qint32 psType)
{
    switch (psType) {
    case 1:
        return QStringLiteral("Literal / Pattern");
    case 2:
        return QStringLiteral("Control Tag");
    case 3:
        return QStringLiteral("Data Type Tag");
    case 4:
        return QStringLiteral("Scope Tag");
    case 5:
        return QStringLiteral("Workfield Literal");
    case 6:
        return QStringLiteral("Array Tag");
    default:
        return QString();
    }
}

QString NamingConventionForm::ObjectPropertyTarget(int index)
{
    switch (index) {
    case 1:
        return QStringLiteral("txtPrefixAdvice");
    case 2:
        return QStringLiteral("txtBody_0");
    case 3:
        return QStringLiteral("txtBodyAdvice");
    case 4:
        return QStringLiteral("txtSuffixAdvice");
    default:
        return QStringLiteral("txtVDescription");
    }
}

QString NamingConventionForm::StripPercent(const QString &selection)
{
    return selection.size() < 2 ? QString() : selection.mid(1, selection.size() - 2);
}

NamingConventionForm::NamingConventionForm(std::shared_ptr<NamingConvention> rule)
    : ConventionForm(std::move(rule))
{
}

void NamingConventionForm::PopulatePrefixSuffixCombos()
{
    for (ItemSection *section : {&m_screen.prefix, &m_screen.suffix}) {
        for (ItemRow &row : section->rows) {
            row.kind.clear();
            for (qint32 psType = 0; psType <= 6; ++psType)
                row.kind.addItem(PSTypeText(psType), psType);
        }
    }
}

void NamingConventionForm::PopulateNCObjectList()
{
    m_screen.imgcboObject.clear();
    for (const ObjectRow &row : namingObjects) {
        m_screen.imgcboObject.addItem(key(row.id),
                                      ObjectHelper::ObjectName(row.id),
                                      ObjectHelper::ObjectTreeIcon(row.id),
                                      row.indentation);
    }
}

void NamingConventionForm::PopulatePropertyList(qint32 objectType)
{
    m_screen.imgcboProperty.clear();
    QStringList names;
    QList<qint32> ids;
    ObjectHelper::GetPropertyList(ObjectListType::NamingConvention, objectType, names, ids);
    for (qsizetype i = 0; i < ids.size(); ++i)
        m_screen.imgcboProperty.addItem(
            key(ids[i]), names[i], ObjectHelper::PropertyIcon(ids[i]), 0);
}

void NamingConventionForm::DataToScreen()
{
    const NamingConvention &rule = *m_rule;
    RuleToScreen();

    m_objectType = rule.ObjectType();
    m_propertyType = rule.PropertyType();
    m_screen.chkCaseSensitive = rule.CaseSensitive();
    PopulateNCObjectList();
    if (m_objectType > 0) {
        m_screen.imgcboObject.setCurrentIndex(m_screen.imgcboObject.findKey(key(m_objectType)));
        PopulatePropertyList(m_objectType);
        m_screen.imgcboProperty.setCurrentIndex(
            m_screen.imgcboProperty.findKey(key(m_propertyType)));
    }

    m_screen.txtExclusionList = rule.ExclusionList();
    m_screen.txtCondition = rule.Condition();

    ItemsToScreen(Prefix, rule.PrefixActive(), rule);

    m_screen.chkBodyActive = rule.BodyActive();
    if (rule.BodyActive()) {
        m_screen.txtBody[0] = rule.BodyPattern();
        m_screen.txtBody[1] = QString::number(rule.MinBodyLength());
        m_screen.txtBody[2] = QString::number(rule.MaxBodyLength());
        m_screen.txtBodyAdvice = rule.BodyAdvice();
    }
    chkBodyActive_Click();

    ItemsToScreen(Suffix, rule.SuffixActive(), rule);

    ViolationToScreen(*rule.ViolationDefinition(), false);
}

void NamingConventionForm::ItemsToScreen(Part part, bool active, const NamingConvention &rule)
{
    ItemSection &items = section(part);
    const auto &source = part == Prefix ? rule.PrefixItems() : rule.SuffixItems();
    (part == Prefix ? m_screen.chkPrefixActive : m_screen.chkSuffixActive) = active;
    if (active) {
        for (int i = 0; i < 4; ++i) {
            const std::shared_ptr<PrefixSuffixItem> item = source->Item(i + 1);
            ItemRow &row = items.rows[std::size_t(i)];
            setKind(row, row.kind.FindItemWithItemData(item->PSType()));
            // Each choice of a kind is a click, with what that does to the rows below.
            EnableDisableItems(part, true);
            row.text = item->Value();
        }
        items.advice = part == Prefix ? rule.PrefixAdvice() : rule.SuffixAdvice();
        EnableDisableItems(part, true);
    } else {
        for (ItemRow &row : items.rows)
            setKind(row, 0);
        EnableDisableItems(part, false);
    }
}

void NamingConventionForm::setKind(ItemRow &row, int comboRow)
{
    row.kind.setCurrentIndex(comboRow);
    row.actionToolTip = row.kind.currentItemData(-1) == WorkfieldLiteral
                            ? QStringLiteral("Select Workfield")
                            : QStringLiteral("Insert Pattern");
}

void NamingConventionForm::EnableDisableItems(Part part, bool enabled)
{
    ItemSection &items = section(part);
    m_updating = true;
    int clearFrom = enabled ? -1 : 0;
    if (enabled) {
        for (int i = 0; i < 4; ++i) {
            ItemRow &row = items.rows[std::size_t(i)];
            if (!row.kind.hasSelection())
                continue;
            const qint32 kind = row.kind.currentItemData();
            if (kind == Blank) {
                clearFrom = i;
                break;
            }
            if (kind == LiteralPattern) {
                row.actionEnabled = true;
                row.textEnabled = true;
                row.textLocked = false;
                row.textGrey = false;
            } else if (kind == WorkfieldLiteral) {
                row.actionEnabled = true;
                row.textEnabled = true;
                row.textLocked = true;
                row.textGrey = true;
            } else {
                row.actionEnabled = false;
                row.text.clear();
                row.textEnabled = false;
                row.textGrey = true;
            }
            if (i < 3)
                items.rows[std::size_t(i + 1)].kindEnabled = true;
        }
    }
    if (clearFrom >= 0) {
        for (int i = clearFrom; i < 4; ++i) {
            ItemRow &row = items.rows[std::size_t(i)];
            setKind(row, 0);
            row.text.clear();
            row.textGrey = true;
            row.textEnabled = false;
            row.actionEnabled = false;
            if (i > clearFrom)
                row.kindEnabled = false;
        }
    }
    items.enabled = enabled;
    items.rows[0].kindEnabled = enabled;
    if (!enabled)
        items.advice.clear();
    m_updating = false;
}

void NamingConventionForm::imgcboObject_Click()
{
    m_objectType = Text::valLong(m_screen.imgcboObject.currentKey());
    PopulatePropertyList(m_objectType);
    m_screen.imgcboProperty.setCurrentIndex(0);
    imgcboProperty_Click();
}

void NamingConventionForm::imgcboProperty_Click()
{
    m_propertyType = Text::valLong(m_screen.imgcboProperty.currentKey());
}

void NamingConventionForm::cboItem_Click(Part part, int index)
{
    if (!m_updating)
        EnableDisableItems(part, true);
    ItemRow &row = section(part).rows[std::size_t(index)];
    setKind(row, row.kind.currentIndex());
}

void NamingConventionForm::chkBodyActive_Click()
{
    const bool on = m_screen.chkBodyActive;
    m_screen.bodyEnabled = on;
    if (!on) {
        for (QString &text : m_screen.txtBody)
            text.clear();
        m_screen.txtBodyAdvice.clear();
    }
}

bool NamingConventionForm::ActionPicksWorkfield(Part part, int index) const
{
    const ItemSection &items = part == Prefix ? m_screen.prefix : m_screen.suffix;
    return items.rows[std::size_t(index)].kind.currentItemData(-1) == WorkfieldLiteral;
}

void NamingConventionForm::cmdDelete_Click()
{
    if (askYesNo(QStringLiteral(
                     "Are you sure you wish to delete the condition for this naming convention?"),
                 MessageResult::No)
        == MessageResult::Yes)
        m_screen.txtCondition.clear();
}

std::optional<FormFault> NamingConventionForm::ItemFault(Part part) const
{
    const bool prefix = part == Prefix;
    const ItemSection &items = prefix ? m_screen.prefix : m_screen.suffix;
    const QString field = prefix ? QStringLiteral("txtPrefix") : QStringLiteral("txtSuffix");
    const int tab = prefix ? PrefixTab : SuffixTab;
    // One pass: the first row at fault, whichever its kind.
    for (int i = 0; i < 4; ++i) {
        const ItemRow &row = items.rows[std::size_t(i)];
        const qint32 kind = row.kind.currentItemData(-1);
        if (kind == LiteralPattern && row.text.isEmpty())
            return FormFault{
                tab,
                field,
                i,
                prefix ? QStringLiteral("Please enter a literal or pattern for the prefix item.")
                       : QStringLiteral("Please enter a literal or pattern for the suffix item.")};
        if (kind == WorkfieldLiteral && row.text.isEmpty())
            return FormFault{tab,
                             field,
                             i,
                             prefix
                                 ? QStringLiteral("Please enter a workfield for the prefix item.")
                                 : QStringLiteral("Please enter a workfield for the suffix item.")};
    }
    if (items.advice.isEmpty())
        return FormFault{
            tab,
            prefix ? QStringLiteral("txtPrefixAdvice") : QStringLiteral("txtSuffixAdvice"),
            -1,
            prefix ? QStringLiteral("Please enter the violation advice for an invalid prefix.")
                   : QStringLiteral("Please enter the violation advice for an invalid suffix.")};
    return std::nullopt;
}

std::optional<FormFault> NamingConventionForm::FirstFault() const
{
    if (auto fault
        = TitleFault(RuleTab, QStringLiteral("Please enter a title for the naming convention.")))
        return fault;
    if (!m_screen.imgcboObject.hasSelection())
        return FormFault{
            RuleTab,
            QStringLiteral("imgcboObject"),
            -1,
            QStringLiteral("Please select an object/property for the naming convention.")};
    if (auto fault = ConditionFault(ConditionTab, m_screen.txtCondition, conditionRuleType))
        return fault;
    if (m_screen.chkPrefixActive) {
        if (auto fault = ItemFault(Prefix))
            return fault;
    }
    if (m_screen.chkBodyActive && m_screen.txtBodyAdvice.isEmpty())
        return FormFault{BodyTab,
                         QStringLiteral("txtBodyAdvice"),
                         -1,
                         QStringLiteral("Please enter the violation advice for an invalid body.")};
    if (m_screen.chkSuffixActive) {
        if (auto fault = ItemFault(Suffix))
            return fault;
    }
    return ViolationTitleFault(ViolationTab);
}

void NamingConventionForm::DataFromScreen()
{
    NamingConvention &rule = *m_rule;
    RuleFromScreen();
    rule.setObjectType(m_objectType);
    rule.setPropertyType(m_propertyType);
    // Property 0 is no property: nothing to look up, and nothing worth a log line.
    rule.setPropertyName(m_propertyType != 0 ? ObjectHelper::PropertyName(m_propertyType)
                                             : QString());
    rule.setCaseSensitive(m_screen.chkCaseSensitive);
    rule.setExclusionList(m_screen.txtExclusionList);
    rule.setCondition(m_screen.txtCondition);
    rule.setPrefixActive(m_screen.chkPrefixActive);
    for (int i = 0; i < 4; ++i) {
        const ItemRow &row = m_screen.prefix.rows[std::size_t(i)];
        rule.PrefixItems()->Item(i + 1)->setPSType(row.kind.currentItemData(0));
        rule.PrefixItems()->Item(i + 1)->setValue(row.text);
    }
    rule.setPrefixAdvice(m_screen.prefix.advice);
    rule.setBodyActive(m_screen.chkBodyActive);
    rule.setBodyPattern(m_screen.txtBody[0]);
    rule.setMinBodyLength(NumberFromField(m_screen.txtBody[1]));
    rule.setMaxBodyLength(NumberFromField(m_screen.txtBody[2]));
    rule.setBodyAdvice(m_screen.txtBodyAdvice);
    rule.setSuffixActive(m_screen.chkSuffixActive);
    for (int i = 0; i < 4; ++i) {
        const ItemRow &row = m_screen.suffix.rows[std::size_t(i)];
        rule.SuffixItems()->Item(i + 1)->setPSType(row.kind.currentItemData(0));
        rule.SuffixItems()->Item(i + 1)->setValue(row.text);
    }
    rule.setSuffixAdvice(m_screen.suffix.advice);
    ViolationFromScreen(*rule.ViolationDefinition(), false);
}
