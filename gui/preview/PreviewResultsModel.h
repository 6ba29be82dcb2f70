#pragma once

#include "preview/PreviewResult.h"

#include <QAbstractItemModel>
#include <QString>

#include <vector>

// The findings of a preview as a two-level tree: one row for each rule (or each file) with
// its count, its findings below. A filter keeps the findings whose texts hold it.
class PreviewResultsModel final : public QAbstractItemModel
{
    Q_OBJECT

public:
    enum class Grouping { ByRule, ByFile };
    enum Column {
        RuleColumn,
        ObjectColumn,
        NameColumn,
        FileColumn,
        LineColumn,
        MessageColumn,
        Columns
    };
    // On a finding's row: its index in the result; on a group's row: -1.
    static constexpr int FindingRole = Qt::UserRole + 1;

    explicit PreviewResultsModel(QObject *parent = nullptr);

    void setResult(PreviewResult result);
    const PreviewResult &result() const { return m_result; }
    void setGrouping(Grouping grouping);
    Grouping grouping() const { return m_grouping; }
    // Case-insensitive; empty shows everything.
    void setFilter(const QString &filter);
    // Findings shown under the filter.
    qint64 shownCount() const { return m_shown; }
    // The finding of a row, or nullptr for a group's row; for a group, its first finding.
    const PreviewFinding *finding(const QModelIndex &index) const;
    const PreviewFinding *firstOfGroup(const QModelIndex &index) const;

    QModelIndex index(int row, int column, const QModelIndex &parent = {}) const override;
    QModelIndex parent(const QModelIndex &child) const override;
    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    struct Group
    {
        QString label;
        std::vector<qsizetype> findings;
    };
    void regroup();
    bool passes(const PreviewFinding &finding) const;
    QString shownFile(const PreviewFinding &finding) const;

    PreviewResult m_result;
    Grouping m_grouping = Grouping::ByRule;
    QString m_filter;
    std::vector<Group> m_groups;
    qint64 m_shown = 0;
};
