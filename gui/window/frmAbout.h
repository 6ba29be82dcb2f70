#pragma once

#include <QDialog>

class QLabel;
class QPushButton;
class QTimer;

// The about box, which also serves as the splash form at start: then it shows no buttons and
// closes itself after 1500 milliseconds.
class frmAbout final : public QDialog
{
    Q_OBJECT

public:
    explicit frmAbout(QWidget *parent = nullptr);

    // Hides the buttons, shows the form modeless and on top, and arms tmrDelay; the form closes
    // and deletes itself when the timer fires. Nothing waits for it.
    void ShowSplashScreen();

    static constexpr int SplashMilliseconds = 1500;

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    QLabel *m_version = nullptr;
    QLabel *m_homePage = nullptr;
    QPushButton *m_ok = nullptr;
    QTimer *m_delay = nullptr;
};
