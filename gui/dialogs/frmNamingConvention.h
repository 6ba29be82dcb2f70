#pragma once

#include "editors/NamingConventionForm.h"
#include "gui/dialogs/frmConventionBase.h"

#include <array>

// "Naming Convention": the dialog of one naming convention on six tabs, over
// NamingConventionForm.
class frmNamingConvention final : public frmConventionBase
{
    Q_OBJECT

public:
    explicit frmNamingConvention(QWidget *parent = nullptr);

    void setConvention(const std::shared_ptr<IRule> &rule) override;
    NamingConventionForm &model() { return m_model; }

protected:
    void buildTabs() override;
    void refresh() override;
    void pickObjectProperty(int index) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    // The controls of the "Prefix" or the "Suffix" tab.
    struct SectionWidgets
    {
        QCheckBox *active = nullptr;
        QList<QLabel *> labels;
        std::array<QComboBox *, 4> kinds{};
        std::array<QLineEdit *, 4> texts{};
        std::array<QPushButton *, 4> actions{};
        std::array<int, 4> revisions{-1, -1, -1, -1};
        QPlainTextEdit *advice = nullptr;
        QPushButton *picker = nullptr;
    };

    void buildRuleTab();
    void buildConditionTab();
    void buildSectionTab(NamingConventionForm::Part part);
    void buildBodyTab();
    void refreshSection(NamingConventionForm::Part part);
    void runItemAction(NamingConventionForm::Part part, int index);
    void editCondition();

    NamingConventionForm m_model;
    QComboBox *m_imgcboObject = nullptr;
    QComboBox *m_imgcboProperty = nullptr;
    QCheckBox *m_chkCaseSensitive = nullptr;
    QPlainTextEdit *m_txtCondition = nullptr;
    QPushButton *m_cmdDelete = nullptr;
    QLineEdit *m_txtExclusionList = nullptr;
    SectionWidgets m_prefix;
    SectionWidgets m_suffix;
    QCheckBox *m_chkBodyActive = nullptr;
    QList<QWidget *> m_bodyControls;
    std::array<QLineEdit *, 3> m_txtBody{};
    QPlainTextEdit *m_txtBodyAdvice = nullptr;
    int m_objectRevision = -1;
    int m_propertyRevision = -1;
};
