#pragma once

#include "preview/PreviewResult.h"

#include <QSet>
#include <QString>
#include <QStringList>

#include <atomic>
#include <functional>
#include <memory>

class Rulebase;

// Shows, rule by rule and file by file, what a rulebase would report on projects without
// running the reviewer: names against the naming conventions, code lines against the
// unauthorised keywords, the libraries against the authorised items, and the projects'
// figures against the tolerances. Bad input (a missing or unreadable project, group or
// source file) becomes a finding named by its path.
class PreviewRun final
{
public:
    // Files read so far, of how many, and the one being read.
    using Progress = std::function<void(qint64 done, qint64 total, const QString &file)>;

    explicit PreviewRun(std::shared_ptr<const Rulebase> rulebase);
    ~PreviewRun();

    // Limits the run to some rules: ids ("5000"), keys ("5000Key") or the ids of PreviewCheck,
    // ignoring case. Gives those that name nothing the rulebase has. Empty: every rule.
    QStringList setRuleFilter(const QStringList &ids);
    void setProgress(Progress progress) { m_progress = std::move(progress); }
    // Stops a run under way after the file it reads; for the progress callback to call.
    // The result says it was cancelled and holds what was found until then.
    void cancel() { m_cancelled = true; }

    // Projects (.vbp) and groups (.vbg).
    PreviewResult run(const QStringList &paths);

    // The title of a check that belongs to no rule, as findings carry it.
    static QString checkTitle(const QString &check);

private:
    bool wants(const QString &id) const;

    std::shared_ptr<const Rulebase> m_rulebase;
    QSet<QString> m_filter; // lower-case ids; empty: all
    Progress m_progress;
    std::atomic<bool> m_cancelled = false;
};
