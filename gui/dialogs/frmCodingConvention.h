#pragma once

#include "editors/CodingConventionForm.h"
#include "gui/dialogs/frmConventionBase.h"

class QGroupBox;
class QTreeWidget;

// "Coding Convention": the dialog of one coding convention, over CodingConventionForm.
class frmCodingConvention final : public frmConventionBase
{
    Q_OBJECT

public:
    explicit frmCodingConvention(QWidget *parent = nullptr);

    void setConvention(const std::shared_ptr<IRule> &rule) override;
    CodingConventionForm &model() { return m_model; }

protected:
    void buildTabs() override;
    void refresh() override;
    void pickObjectProperty(int index) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void buildEventTab();
    void buildConditionTab();

    CodingConventionForm m_model;
    QGroupBox *m_fraEvent = nullptr;
    QTreeWidget *m_tvwEvent = nullptr;
    QComboBox *m_imgcboEvent = nullptr;
    QLabel *m_lblEventHelp = nullptr;
    QList<QPushButton *> m_cmdCollapse;
    QCheckBox *m_chkPending = nullptr;
    QGroupBox *m_fraPendingViolation = nullptr;
    QLabel *m_lblPending = nullptr;
    QComboBox *m_imgcboPending = nullptr;
    QPlainTextEdit *m_txtCondition = nullptr;
    int m_treeRevision = -1;
    int m_eventRevision = -1;
    int m_pendingRevision = -1;
};
