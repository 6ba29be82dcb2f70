#include "gui/preview/frmPreview.h"

#include "collections/ObjectKeyedArrayList.h"
#include "editors/IRuleEditorLauncher.h"
#include "gui/preview/PreviewResultsModel.h"
#include "platform/ErrorFrame.h"
#include "preview/PreviewRun.h"
#include "project/SourceTextFile.h"
#include "rulebase/IRule.h"
#include "rulebase/RuleLists.h"
#include "rulebase/Rulebase.h"

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFileInfo>
#include <QFontDatabase>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProgressDialog>
#include <QPushButton>
#include <QSplitter>
#include <QTextBlock>
#include <QTreeView>
#include <QVBoxLayout>

namespace {

// Lines shown before and after the line of a finding.
constexpr int SourceContext = 8;

} // namespace

frmPreview::frmPreview(QWidget *parent)
    : QWidget(parent, Qt::Window)
    , m_model(new PreviewResultsModel(this))
{
    setObjectName(QStringLiteral("frmPreview"));
    setWindowTitle(tr("Preview"));
    resize(1000, 640);

    m_projects = new QLabel(this);
    m_projects->setObjectName(QStringLiteral("lblProjects"));
    m_groupBy = new QComboBox(this);
    m_groupBy->setObjectName(QStringLiteral("cboGroupBy"));
    m_groupBy->addItems({tr("By Rule"), tr("By File")});
    m_filter = new QLineEdit(this);
    m_filter->setObjectName(QStringLiteral("txtFilter"));
    m_filter->setPlaceholderText(tr("Filter"));
    m_filter->setClearButtonEnabled(true);
    m_editRule = new QPushButton(tr("&Edit Rule..."), this);
    m_editRule->setObjectName(QStringLiteral("cmdEditRule"));
    m_refresh = new QPushButton(tr("&Refresh"), this);
    m_refresh->setObjectName(QStringLiteral("cmdRefresh"));

    auto *bar = new QHBoxLayout;
    auto *groupLabel = new QLabel(tr("&Group:"), this);
    groupLabel->setBuddy(m_groupBy);
    bar->addWidget(groupLabel);
    bar->addWidget(m_groupBy);
    bar->addWidget(m_filter, 1);
    bar->addWidget(m_editRule);
    bar->addWidget(m_refresh);

    m_findings = new QTreeView(this);
    m_findings->setObjectName(QStringLiteral("tvwFindings"));
    m_findings->setModel(m_model);
    m_findings->setUniformRowHeights(true);
    m_findings->setAlternatingRowColors(true);
    m_findings->setExpandsOnDoubleClick(false);
    m_findings->header()->setStretchLastSection(true);

    m_sourceTitle = new QLabel(this);
    m_sourceTitle->setObjectName(QStringLiteral("lblSource"));
    m_source = new QPlainTextEdit(this);
    m_source->setObjectName(QStringLiteral("txtSource"));
    m_source->setReadOnly(true);
    m_source->setLineWrapMode(QPlainTextEdit::NoWrap);
    m_source->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    auto *sourcePane = new QWidget(this);
    auto *sourceLayout = new QVBoxLayout(sourcePane);
    sourceLayout->setContentsMargins(0, 0, 0, 0);
    sourceLayout->addWidget(m_sourceTitle);
    sourceLayout->addWidget(m_source);

    auto *splitter = new QSplitter(Qt::Vertical, this);
    splitter->addWidget(m_findings);
    splitter->addWidget(sourcePane);
    splitter->setStretchFactor(0, 3);
    splitter->setStretchFactor(1, 1);

    m_counts = new QLabel(this);
    m_counts->setObjectName(QStringLiteral("lblCounts"));

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_projects);
    layout->addLayout(bar);
    layout->addWidget(splitter, 1);
    layout->addWidget(m_counts);

    connect(m_groupBy, &QComboBox::currentIndexChanged, this, [this](int index) {
        m_model->setGrouping(index == 1 ? PreviewResultsModel::Grouping::ByFile
                                        : PreviewResultsModel::Grouping::ByRule);
        m_findings->expandAll();
        updateButtons();
    });
    connect(m_filter, &QLineEdit::textChanged, this, [this](const QString &text) {
        m_model->setFilter(text.trimmed());
        m_findings->expandAll();
        updateCounts();
        updateButtons();
    });
    connect(m_findings, &QTreeView::doubleClicked, this, &frmPreview::activated);
    connect(m_findings->selectionModel(),
            &QItemSelectionModel::currentChanged,
            this,
            &frmPreview::updateButtons);
    connect(m_editRule, &QPushButton::clicked, this, &frmPreview::editRule);
    connect(m_refresh, &QPushButton::clicked, this, &frmPreview::rerun);
    updateCounts();
    updateButtons();
}

frmPreview::~frmPreview() = default;

void frmPreview::setRulebase(std::shared_ptr<Rulebase> rulebase)
{
    m_rulebase = std::move(rulebase);
    updateButtons();
}

void frmPreview::preview(const QStringList &paths)
{
    m_paths = paths;
    QStringList names;
    for (const QString &path : paths)
        names << QDir::toNativeSeparators(path);
    m_projects->setText(tr("Projects: %1").arg(names.join(QStringLiteral(", "))));
    rerun();
}

void frmPreview::rerun()
{
    if (!m_rulebase || m_paths.isEmpty())
        return;
    guardedVoid("rerun", "frmPreview", [this] {
        QProgressDialog progress(tr("Previewing..."), tr("Cancel"), 0, 1, this);
        progress.setObjectName(QStringLiteral("dlgPreviewProgress"));
        progress.setWindowTitle(tr("Preview"));
        progress.setWindowModality(Qt::WindowModal);
        progress.setMinimumDuration(500);
        progress.setAutoReset(false);
        PreviewRun run(m_rulebase);
        run.setProgress([&](qint64 done, qint64 total, const QString &file) {
            progress.setMaximum(int(std::max<qint64>(total, 1)));
            progress.setValue(int(done));
            if (!file.isEmpty())
                progress.setLabelText(tr("Previewing %1").arg(QFileInfo(file).fileName()));
            QApplication::processEvents();
            if (progress.wasCanceled())
                run.cancel();
        });
        QApplication::setOverrideCursor(Qt::BusyCursor);
        PreviewResult result = run.run(m_paths);
        QApplication::restoreOverrideCursor();
        progress.close();
        m_cancelled = result.cancelled;
        m_model->setResult(std::move(result));
    });
    m_findings->expandAll();
    for (int column = 0; column < PreviewResultsModel::MessageColumn; ++column)
        m_findings->resizeColumnToContents(column);
    m_source->clear();
    m_sourceTitle->clear();
    updateCounts();
    updateButtons();
}

void frmPreview::updateCounts()
{
    const PreviewResult &result = m_model->result();
    const qint64 violations = result.count(PreviewFinding::Kind::Violation);
    const qint64 open = result.count(PreviewFinding::Kind::NotPreviewed);
    const qint64 unread = result.count(PreviewFinding::Kind::Unread);
    auto counted = [](qint64 count, const QString &one, const QString &many) -> QString {
        return QString::number(count) + QLatin1Char(' ') + (count == 1 ? one : many);
    };
    QString text = counted(violations, tr("violation"), tr("violations")) + QStringLiteral(", ")
                   + counted(open, tr("not previewed"), tr("not previewed")) + QStringLiteral(", ")
                   + counted(unread, tr("file not read"), tr("files not read"));
    if (qint64(result.findings.size()) != m_model->shownCount())
        text += tr("; %1 shown").arg(m_model->shownCount());
    if (m_cancelled)
        text += tr(" (cancelled: the files after it were not read)");
    m_counts->setText(text);
}

void frmPreview::updateButtons()
{
    const PreviewFinding *finding = m_model->firstOfGroup(m_findings->currentIndex());
    const bool onRule = finding && finding->ruleType != 0
                        && (m_model->grouping() == PreviewResultsModel::Grouping::ByRule
                            || m_model->finding(m_findings->currentIndex()));
    m_editRule->setEnabled(onRule && m_rulebase);
    m_refresh->setEnabled(m_rulebase && !m_paths.isEmpty());
}

void frmPreview::activated(const QModelIndex &index)
{
    if (const PreviewFinding *finding = m_model->finding(index)) {
        showSource(*finding);
    } else if (m_model->grouping() == PreviewResultsModel::Grouping::ByRule) {
        m_findings->setCurrentIndex(index);
        editRule();
    }
}

void frmPreview::showSource(const PreviewFinding &finding)
{
    m_sourceTitle->setText(
        finding.line > 0
            ? QStringLiteral("%1:%2").arg(QDir::toNativeSeparators(finding.file)).arg(finding.line)
            : QDir::toNativeSeparators(finding.file));
    QStringList lines;
    int selected = -1;
    try {
        SourceTextFile file(finding.file);
        const int first = std::max(1, finding.line - SourceContext);
        const int last = std::max(finding.line, 1) + SourceContext;
        for (int number = 1; !file.atEnd() && number <= last; ++number) {
            const QString text = file.readLine();
            if (number < first)
                continue;
            if (number == finding.line)
                selected = int(lines.size());
            lines << QStringLiteral("%1  %2").arg(number, 6).arg(text);
        }
    } catch (const std::exception &) {
        lines = {tr("The file could not be read.")};
    }
    m_source->setPlainText(lines.join(QLatin1Char('\n')));
    if (selected >= 0) {
        QTextCursor cursor(m_source->document()->findBlockByNumber(selected));
        cursor.select(QTextCursor::LineUnderCursor);
        m_source->setTextCursor(cursor);
        m_source->centerCursor();
    }
}

void frmPreview::editRule()
{
    const PreviewFinding *finding = m_model->firstOfGroup(m_findings->currentIndex());
    if (!finding || finding->ruleType == 0 || !m_rulebase)
        return;
    const auto all = m_rulebase->RuleLists()->AllConventions();
    const qint32 index = all->FindIndexByKey(finding->ruleKey);
    if (index < 1)
        return;
    if (!IRuleEditorLauncher::current().EditRule(all->Item(index)))
        return;
    emit ruleEdited();
    rerun();
}
