#pragma once

class QString;
class QTextStream;

// Where a subcommand writes: results to `out`, messages to `err`. Progress goes to `err`
// only when the caller says a person is watching it (a terminal), so logs stay clean.
class ToolContext final
{
public:
    ToolContext(QTextStream &out, QTextStream &err, bool showProgress = false);

    QTextStream &out() const { return m_out; }
    QTextStream &err() const { return m_err; }
    bool showProgress() const { return m_showProgress; }

    // Overwrites the progress line; nothing when progress is off.
    void progress(const QString &text) const;
    // Clears the progress line, if one was drawn.
    void endProgress() const;

private:
    QTextStream &m_out;
    QTextStream &m_err;
    bool m_showProgress = false;
    mutable bool m_progressShown = false;
};
