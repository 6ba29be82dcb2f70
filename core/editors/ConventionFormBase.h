#pragma once

#include "editors/ChoiceList.h"
#include "editors/FormFault.h"
#include "editors/NumberRange.h"
#include "editors/RuleDialogContext.h"

#include <QString>

#include <functional>
#include <memory>
#include <optional>

class Rulebase;
class ViolationDefinition;

// What the three rule dialogs share: the "Rule" tab's title, description and category, the
// "Violation" tab, the active flag, validation that stops at the first fault, and OK and Cancel.
// Nothing reaches the rule before OK has passed ScreenIsValid; Cancel writes nothing.
class ConventionFormBase
{
public:
    // The controls every rule dialog has, by their names.
    struct CommonScreen
    {
        QString txtTitle;
        QString txtDescription;
        ChoiceList cboCategory;
        bool chkRuleActive = true;
        QString txtVTitle;
        QString txtVDescription;
        ChoiceList cboSeverity;
        int imgIcon = -1; // the severity's colour, an index of the severity images
        QString txtVImpact;
        QString txtVAdvice;
    };

    // Moves the dialog to a fault before its warning shows: tab, then focus.
    using FaultMover = std::function<void(const FormFault &)>;

    virtual ~ConventionFormBase();

    // The rulebase and the category list editor.
    void setContext(const RuleDialogContext &context);
    void setRulebase(std::shared_ptr<Rulebase> rulebase);
    const std::shared_ptr<Rulebase> &rulebase() const { return m_rulebase; }

    virtual CommonScreen &common() = 0;
    virtual const CommonScreen &common() const = 0;

    // Form load: the static lists, then the rule's data.
    virtual void Load();
    // The categories, the dialog's own lists, then the severities.
    void PopulateStaticData();
    virtual void DataToScreen() = 0;
    // The rule's RuleID, for the condition editor's caption.
    virtual qint32 RuleID() const = 0;

    bool Cancelled() const { return m_cancelled; }
    // The severity's colour and its impact, which overwrites the author's.
    void cboSeverity_Click();
    // Runs the category dialog, then refills the categories with none selected.
    void cmdCategory_Click();

    // The first fault in the dialog's order, or none.
    virtual std::optional<FormFault> FirstFault() const = 0;
    // On a fault: remember it, move the dialog to it, show its warning; false.
    bool ScreenIsValid(const FaultMover &moveTo = {});
    const std::optional<FormFault> &lastFault() const { return m_lastFault; }
    virtual void DataFromScreen() = 0;
    // OK: validated first; only then Cancelled is cleared and the rule written. False keeps the
    // dialog open.
    bool cmdOK_Click(const FaultMover &moveTo = {});
    void cmdCancel_Click() { m_cancelled = true; }

    // The text with `insert` put in at a 0-based caret (clamped to the text).
    static QString InsertText(const QString &text, int caret, const QString &insert);
    // The keys a digits-only field takes: 0 to 9 and Backspace.
    static bool CheckNumericKey(QChar key);
    // The leading number of a digits-only field, 0 when empty, into 16 bits.
    static qint16 NumberFromField(const QString &text);
    // What the 16-bit number fields (txtVImpact, the body lengths) can take.
    static constexpr NumberRange NumberFieldRange() { return NumberRange::sixteenBit(); }

protected:
    // The lists only this dialog has, filled between the categories and the severities.
    virtual void PopulateOwnLists() {}
    void PopulateCategories();
    void PopulateSeverities();
    // Selects the category by item data; no row for an id that isn't listed.
    void CategoryToScreen(qint32 categoryID);
    qint32 CategoryFromScreen() const;
    // Title and description, then the severity: one that is set is selected and the
    // definition's own impact shown; 0, a new rule's, selects the first row with its impact.
    void ViolationToScreen(const ViolationDefinition &definition, bool withAdvice);
    void ViolationFromScreen(ViolationDefinition &definition, bool withAdvice) const;
    // The title check that opens every dialog's validation, with the dialog's own message.
    std::optional<FormFault> TitleFault(int tab, const QString &message) const;
    // The violation title check that closes it.
    std::optional<FormFault> ViolationTitleFault(int tab) const;
    // The condition editor's check of a condition on `tab`'s txtCondition, with its message.
    static std::optional<FormFault>
    ConditionFault(int tab, const QString &condition, qint32 ruleType);

private:
    std::function<void()> m_editCategories;
    std::shared_ptr<Rulebase> m_rulebase;
    bool m_cancelled = true;
    std::optional<FormFault> m_lastFault;
};
