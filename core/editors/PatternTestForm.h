#pragma once

#include <QString>

// "Pattern Test": the form model of the small dialog in which an author edits a pattern and
// tries it on a sample text. It changes no rule; the caller takes Pattern back unless Cancelled.
class PatternTestForm final
{
public:
    struct Screen
    {
        QString txtPattern;
        QString txtText;
        bool chkCaseSensitive = false;
    };

    static const char *const caption;

    QString Pattern() const { return m_pattern; }
    void setPattern(const QString &pattern) { m_pattern = pattern; }
    bool Cancelled() const { return m_cancelled; }

    Screen &screen() { return m_screen; }
    const Screen &screen() const { return m_screen; }

    void Load() { m_screen.txtPattern = m_pattern; }
    bool cmdTestEnabled() const { return !m_screen.txtPattern.isEmpty(); }
    // Shows whether the text holds a match, or the pattern's fault; the dialog stays open.
    void cmdTest_Click();
    // The pattern is taken as it stands, tested or not.
    void cmdOK_Click();
    void cmdCancel_Click() { m_cancelled = true; }

private:
    QString m_pattern;
    bool m_cancelled = true;
    Screen m_screen;
};
