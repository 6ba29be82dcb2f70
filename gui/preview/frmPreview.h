#pragma once

#include <QStringList>
#include <QWidget>

#include <memory>

class PreviewResultsModel;
class QComboBox;
class QLabel;
class QLineEdit;
class QModelIndex;
class QPlainTextEdit;
class QPushButton;
class QTreeView;
class Rulebase;
struct PreviewFinding;

// The results window of Tools > Preview on Project: what the open rulebase would report on a
// project, grouped by rule or by file, with a filter and counts. A double click on a finding
// shows its source around the line; on a rule, or through Edit Rule, opens the rule's dialog,
// after which the preview runs again. Long runs show their progress and can be cancelled.
class frmPreview final : public QWidget
{
    Q_OBJECT

public:
    explicit frmPreview(QWidget *parent = nullptr);
    ~frmPreview() override;

    // The rulebase previewed; a run needs one.
    void setRulebase(std::shared_ptr<Rulebase> rulebase);
    // Previews projects and groups, and shows what it found.
    void preview(const QStringList &paths);
    PreviewResultsModel *model() const { return m_model; }

signals:
    // A rule was changed in its dialog from here.
    void ruleEdited();

private:
    void rerun();
    void activated(const QModelIndex &index);
    void showSource(const PreviewFinding &finding);
    void editRule();
    void updateCounts();
    void updateButtons();

    std::shared_ptr<Rulebase> m_rulebase;
    QStringList m_paths;
    bool m_cancelled = false;
    PreviewResultsModel *m_model = nullptr;
    QLabel *m_projects = nullptr;
    QComboBox *m_groupBy = nullptr;
    QLineEdit *m_filter = nullptr;
    QPushButton *m_editRule = nullptr;
    QPushButton *m_refresh = nullptr;
    QTreeView *m_findings = nullptr;
    QLabel *m_counts = nullptr;
    QLabel *m_sourceTitle = nullptr;
    QPlainTextEdit *m_source = nullptr;
};
