#pragma once

#include <QDialog>
#include <QStringList>

class QCheckBox;
class QLabel;

// The tip of the day: one tip at a time from the tips file, the next on request, and whether
// tips show at start-up. LastTip is the 1-based number of the tip last shown, 0 before any.
class frmTip final : public QDialog
{
    Q_OBJECT

public:
    explicit frmTip(QWidget *parent = nullptr);

    int LastTip() const { return m_lastTip; }
    // Shows the tip after `lastTip`, from the first again after the last.
    void setLastTip(int lastTip);
    void NextTip();
    QString currentTip() const;
    int tipCount() const { return int(m_tips.size()); }

    // The tips of a tips file: one a line; blank lines and lines starting with ";" are skipped.
    static QStringList LoadTips(const QString &path);
    // The program's own tips file.
    static QString tipsFile();

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    void showTip(int number);

    QStringList m_tips;
    int m_lastTip = 0;
    QLabel *m_tip = nullptr;
    QLabel *m_number = nullptr;
    QCheckBox *m_showAtStartup = nullptr;
};
