#pragma once

#include "editors/IConventionForm.h"

#include <QDialog>

class ChoiceList;
class ConventionFormBase;
class QComboBox;
class QGridLayout;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QCheckBox;
class QTabWidget;
struct FormFault;

// The shell the three rule dialogs share over their form models: the tab strip, the "Rule" tab's
// title, description and category, the "Violation" tab, the active box, OK, Cancel and Help.
// Every edit goes straight into the model; after each of the model's routines the dialog
// redraws itself from it. The frame's close and Escape are Cancel.
class frmConventionBase : public QDialog, public IConventionForm
{
    Q_OBJECT

public:
    void setContext(const RuleDialogContext &context) override;
    bool Cancelled() const override;
    // Loads the rule into the model and runs the dialog modally.
    void Show() override;

    void reject() override;

    // A text field's caret insertion, used for the picker's macro strings.
    static void InsertText(QWidget *field, const QString &text);
    // Items of a combo from the model's rows, with their pictures.
    static void fillCombo(QComboBox *combo, const ChoiceList &choices);

protected:
    frmConventionBase(QWidget *parent,
                      ConventionFormBase &model,
                      const QString &caption,
                      const QString &helpTopic);

    // Builds the tabs; called by the subclass once its own members are made.
    void buildCommon();
    virtual void buildTabs() = 0;
    // Redraws every control from the model.
    virtual void refresh();
    // The picker behind cmdObjectProperty(index) of the "Violation" tab, or of another tab.
    virtual void pickObjectProperty(int index) = 0;

    QWidget *addTab(const QString &caption);
    // "Rule" tab: title, description, category with its button, into the grid from `row` on.
    int addRuleFields(QGridLayout *grid, int row);
    // "Violation" tab, with the advice and its picker when asked.
    void addViolationTab(const QString &caption,
                         bool withAdvice,
                         int descriptionPicker,
                         int advicePicker);

    QLineEdit *lineEdit(const QString &name, QWidget *parent);
    QPlainTextEdit *textEdit(const QString &name, QWidget *parent);
    QLabel *label(const QString &name, const QString &text, QWidget *buddy, QWidget *parent);
    QPushButton *button(const QString &name, const QString &text, QWidget *parent);
    QCheckBox *checkBox(const QString &name, const QString &text, QWidget *parent);
    QComboBox *comboBox(const QString &name, QWidget *parent);
    // Digits and Backspace only, up to what the 16-bit number fields hold.
    void digitsOnly(QLineEdit *field);
    // Shows a combo's rows once they changed, and its selection always.
    void showChoices(QComboBox *combo, const ChoiceList &choices, int &revision);
    void setText(QLineEdit *field, const QString &text);
    void setText(QPlainTextEdit *field, const QString &text);

    // Runs the condition editor on txtCondition (4 or 5) and takes its text back unless cancelled.
    void editCondition(qint32 ruleType, QString &condition);
    // Runs the pattern test on a text and gives the pattern back unless cancelled.
    bool runPatternTest(QString &pattern);

    void moveToFault(const FormFault &fault);
    bool eventFilter(QObject *watched, QEvent *event) override;

    QTabWidget *m_tbsConvention = nullptr;

private:
    void cmdOK_Click();
    void nextTab();

    ConventionFormBase &m_model;
    QString m_helpTopic;
    QLineEdit *m_txtTitle = nullptr;
    QPlainTextEdit *m_txtDescription = nullptr;
    QComboBox *m_cboCategory = nullptr;
    QLineEdit *m_txtVTitle = nullptr;
    QPlainTextEdit *m_txtVDescription = nullptr;
    QComboBox *m_cboSeverity = nullptr;
    QLabel *m_imgIcon = nullptr;
    QLineEdit *m_txtVImpact = nullptr;
    QPlainTextEdit *m_txtVAdvice = nullptr;
    QCheckBox *m_chkRuleActive = nullptr;
    int m_categoryRevision = -1;
    int m_severityRevision = -1;
};
