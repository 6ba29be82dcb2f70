#include "gui/preview/PreviewResultsModel.h"

#include <QBrush>
#include <QDir>
#include <QFileInfo>
#include <QHash>
#include <QPalette>

namespace {

// Group rows have no parent; a finding's internal id is its group's row plus one.
constexpr quintptr TopLevel = 0;

} // namespace

PreviewResultsModel::PreviewResultsModel(QObject *parent)
    : QAbstractItemModel(parent)
{
}

void PreviewResultsModel::setResult(PreviewResult result)
{
    beginResetModel();
    m_result = std::move(result);
    regroup();
    endResetModel();
}

void PreviewResultsModel::setGrouping(Grouping grouping)
{
    if (grouping == m_grouping)
        return;
    beginResetModel();
    m_grouping = grouping;
    regroup();
    endResetModel();
}

void PreviewResultsModel::setFilter(const QString &filter)
{
    if (filter == m_filter)
        return;
    beginResetModel();
    m_filter = filter;
    regroup();
    endResetModel();
}

bool PreviewResultsModel::passes(const PreviewFinding &finding) const
{
    if (m_filter.isEmpty())
        return true;
    for (const QString *text : {&finding.ruleId,
                                &finding.ruleTitle,
                                &finding.objectKind,
                                &finding.name,
                                &finding.file,
                                &finding.message}) {
        if (text->contains(m_filter, Qt::CaseInsensitive))
            return true;
    }
    return false;
}

QString PreviewResultsModel::shownFile(const PreviewFinding &finding) const
{
    // Relative to the project's folder, which every file of a project has in common mostly.
    if (finding.project >= 0 && finding.project < qsizetype(m_result.projects.size())) {
        const QDir folder = QFileInfo(m_result.projects[finding.project].path).absoluteDir();
        return folder.relativeFilePath(finding.file);
    }
    return QFileInfo(finding.file).fileName();
}

void PreviewResultsModel::regroup()
{
    m_groups.clear();
    m_shown = 0;
    QHash<QString, qsizetype> groupOf;
    // Groups stand in the order of their first finding: the result's order.
    for (qsizetype i = 0; i < qsizetype(m_result.findings.size()); ++i) {
        const PreviewFinding &finding = m_result.findings[i];
        if (!passes(finding))
            continue;
        const QString key = m_grouping == Grouping::ByRule ? finding.ruleKey : finding.file;
        auto found = groupOf.find(key);
        if (found == groupOf.end()) {
            const QString label
                = m_grouping == Grouping::ByRule
                      ? (finding.ruleType != 0 ? finding.ruleId + QLatin1Char(' ') : QString())
                            + finding.ruleTitle
                      : shownFile(finding);
            found = groupOf.insert(key, qsizetype(m_groups.size()));
            m_groups.push_back({label, {}});
        }
        m_groups[*found].findings.push_back(i);
        ++m_shown;
    }
    if (m_grouping == Grouping::ByRule) {
        // Rules by number, then the checks that belong to no rule.
        std::stable_sort(m_groups.begin(), m_groups.end(), [this](const Group &a, const Group &b) {
            const PreviewFinding &x = m_result.findings[a.findings.front()];
            const PreviewFinding &y = m_result.findings[b.findings.front()];
            if ((x.ruleType != 0) != (y.ruleType != 0))
                return x.ruleType != 0;
            return x.ruleId.toLongLong() < y.ruleId.toLongLong();
        });
    }
}

const PreviewFinding *PreviewResultsModel::finding(const QModelIndex &index) const
{
    if (!index.isValid() || index.internalId() == TopLevel)
        return nullptr;
    const Group &group = m_groups[index.internalId() - 1];
    return &m_result.findings[group.findings[index.row()]];
}

const PreviewFinding *PreviewResultsModel::firstOfGroup(const QModelIndex &index) const
{
    if (!index.isValid())
        return nullptr;
    if (index.internalId() != TopLevel)
        return finding(index);
    return &m_result.findings[m_groups[index.row()].findings.front()];
}

QModelIndex PreviewResultsModel::index(int row, int column, const QModelIndex &parent) const
{
    if (row < 0 || column < 0 || column >= Columns)
        return {};
    if (!parent.isValid())
        return row < int(m_groups.size()) ? createIndex(row, column, TopLevel) : QModelIndex();
    if (parent.internalId() != TopLevel || parent.row() >= int(m_groups.size()))
        return {};
    if (row >= int(m_groups[parent.row()].findings.size()))
        return {};
    return createIndex(row, column, quintptr(parent.row()) + 1);
}

QModelIndex PreviewResultsModel::parent(const QModelIndex &child) const
{
    if (!child.isValid() || child.internalId() == TopLevel)
        return {};
    return createIndex(int(child.internalId() - 1), 0, TopLevel);
}

int PreviewResultsModel::rowCount(const QModelIndex &parent) const
{
    if (!parent.isValid())
        return int(m_groups.size());
    if (parent.internalId() != TopLevel || parent.column() != 0)
        return 0;
    return int(m_groups[parent.row()].findings.size());
}

int PreviewResultsModel::columnCount(const QModelIndex &) const
{
    return Columns;
}

QVariant PreviewResultsModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    if (index.internalId() == TopLevel) {
        const Group &group = m_groups[index.row()];
        if (role == Qt::DisplayRole && index.column() == RuleColumn)
            return QStringLiteral("%1 (%2)").arg(group.label).arg(group.findings.size());
        if (role == FindingRole)
            return -1;
        return {};
    }
    const PreviewFinding &f = *finding(index);
    switch (role) {
    case Qt::DisplayRole:
        switch (index.column()) {
        case RuleColumn:
            return f.ruleType != 0 ? f.ruleId + QLatin1Char(' ') + f.ruleTitle : f.ruleTitle;
        case ObjectColumn:
            return f.objectKind;
        case NameColumn:
            return f.name;
        case FileColumn:
            return shownFile(f);
        case LineColumn:
            return f.line > 0 ? QVariant(f.line) : QVariant();
        case MessageColumn:
            return f.message;
        default:
            return {};
        }
    case Qt::ToolTipRole:
        if (index.column() == FileColumn)
            return QDir::toNativeSeparators(f.file);
        if (index.column() == MessageColumn && !f.advice.isEmpty())
            return f.advice;
        return {};
    case Qt::ForegroundRole:
        if (f.kind == PreviewFinding::Kind::NotPreviewed)
            return QBrush(QPalette().color(QPalette::Disabled, QPalette::Text));
        if (f.kind == PreviewFinding::Kind::Unread)
            return QBrush(Qt::darkRed);
        return {};
    case FindingRole:
        return qlonglong(&f - m_result.findings.data());
    default:
        return {};
    }
}

QVariant PreviewResultsModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    static const char *const headers[Columns]
        = {"Rule", "Object", "Name", "File", "Line", "What is wrong"};
    return section >= 0 && section < Columns ? QString::fromLatin1(headers[section]) : QVariant();
}
