#include "tools/ToolContext.h"

#include <QString>
#include <QTextStream>

ToolContext::ToolContext(QTextStream &out, QTextStream &err, bool showProgress)
    : m_out(out)
    , m_err(err)
    , m_showProgress(showProgress)
{
}

void ToolContext::progress(const QString &text) const
{
    if (!m_showProgress)
        return;
    // Carriage return and erase-to-end keep the progress on one line of the terminal.
    m_err << "\r\033[K" << text;
    m_err.flush();
    m_progressShown = true;
}

void ToolContext::endProgress() const
{
    if (!m_progressShown)
        return;
    m_err << "\r\033[K";
    m_err.flush();
    m_progressShown = false;
}
