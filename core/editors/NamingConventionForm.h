#pragma once

#include "editors/ConventionForm.h"

#include <array>

class NamingConvention;

// "Naming Convention": the form model of one naming convention on six tabs. Keeps the four
// prefix rows and the four suffix rows consistent top-down: a row's kind can only be chosen once
// the row above has one, and a row's text is open only to the kinds that need it.
class NamingConventionForm final : public ConventionForm<NamingConvention>
{
public:
    enum Tab {
        RuleTab = 1,
        ConditionTab = 2,
        PrefixTab = 3,
        BodyTab = 4,
        SuffixTab = 5,
        ViolationTab = 6
    };
    enum PSType { Blank = 0, LiteralPattern = 1, WorkfieldLiteral = 5 };
    enum Part { Prefix, Suffix };

    // One row of the prefix or suffix: cboPrefix, txtPrefix and cmdPrefixAction of an index.
    struct ItemRow
    {
        ChoiceList kind;
        bool kindEnabled = false;
        QString text;
        bool textEnabled = false;
        bool textLocked = false; // a workfield name comes only from the picker
        bool textGrey = true;
        bool actionEnabled = false;
        QString actionToolTip = QStringLiteral("Insert Pattern");
    };

    struct ItemSection
    {
        std::array<ItemRow, 4> rows;
        // The labels, the advice and its picker; the first row's combo goes with them.
        bool enabled = false;
        QString advice;
    };

    struct Screen : CommonScreen
    {
        // "Rule"
        ChoiceList imgcboObject;
        ChoiceList imgcboProperty;
        bool chkCaseSensitive = true;
        // "Condition"
        QString txtCondition;
        QString txtExclusionList;
        // "Prefix", "Suffix"
        bool chkPrefixActive = false;
        ItemSection prefix;
        bool chkSuffixActive = false;
        ItemSection suffix;
        // "Body": txtBody 0 the pattern, 1 the minimum length, 2 the maximum length.
        bool chkBodyActive = false;
        bool bodyEnabled = false;
        std::array<QString, 3> txtBody;
        QString txtBodyAdvice;
    };

    static const char *const caption;
    // The words of a prefix or suffix kind, 0 to 6.
    static QString PSTypeText(qint32 psType);
    // The objectName of the field cmdObjectProperty(index) inserts into, 1 to 5.
    static QString ObjectPropertyTarget(int index);
    // "Object.WF.Name" out of the picker's "%Object.WF.Name%".
    static QString StripPercent(const QString &selection);

    explicit NamingConventionForm(std::shared_ptr<NamingConvention> rule = {});

    Screen &screen() { return m_screen; }
    const Screen &screen() const { return m_screen; }
    CommonScreen &common() override { return m_screen; }
    const CommonScreen &common() const override { return m_screen; }
    ItemSection &section(Part part) { return part == Prefix ? m_screen.prefix : m_screen.suffix; }
    qint32 ObjectType() const { return m_objectType; }
    qint32 PropertyType() const { return m_propertyType; }

    void DataToScreen() override;
    void PopulatePrefixSuffixCombos();
    void EnableDisablePrefixControls(bool enabled) { EnableDisableItems(Prefix, enabled); }
    void EnableDisableSuffixControls(bool enabled) { EnableDisableItems(Suffix, enabled); }
    void PopulateNCObjectList();
    void PopulatePropertyList(qint32 objectType);

    // The author chose a row of a combo (the GUI has set the selection first).
    void imgcboObject_Click();
    void imgcboProperty_Click();
    void cboItem_Click(Part part, int index);
    void cboPrefix_Click(int index) { cboItem_Click(Prefix, index); }
    void cboSuffix_Click(int index) { cboItem_Click(Suffix, index); }
    // The check boxes were set first.
    void chkPrefixActive_Click() { EnableDisablePrefixControls(m_screen.chkPrefixActive); }
    void chkSuffixActive_Click() { EnableDisableSuffixControls(m_screen.chkSuffixActive); }
    void chkBodyActive_Click();
    // cmdPrefixAction / cmdSuffixAction: the workfield picker for a workfield row, else the
    // pattern test.
    bool ActionPicksWorkfield(Part part, int index) const;

    bool cmdDeleteEnabled() const { return !m_screen.txtCondition.isEmpty(); }
    // Asks first; on Yes the condition goes.
    void cmdDelete_Click();

    std::optional<FormFault> FirstFault() const override;
    void DataFromScreen() override;

    static constexpr qint32 conditionRuleType = 5;

private:
    void PopulateOwnLists() override { PopulatePrefixSuffixCombos(); }
    void EnableDisableItems(Part part, bool enabled);
    void setKind(ItemRow &row, int comboRow);
    void ItemsToScreen(Part part, bool active, const NamingConvention &rule);
    std::optional<FormFault> ItemFault(Part part) const;

    Screen m_screen;
    qint32 m_objectType = 0;
    qint32 m_propertyType = 0;
    bool m_updating = false;
};
