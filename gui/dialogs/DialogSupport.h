#pragma once

#include <QString>

class QDialog;
class QLineEdit;
class QPushButton;
class QWidget;

// Small pieces every rulebase-wide dialog shares.
namespace DialogSupport {

// A push button with its caption and object name.
QPushButton *button(const QString &objectName, const QString &caption, QWidget *parent = nullptr);
// Lets only digits into a box, as the number boxes take nothing else.
void digitsOnly(QLineEdit *box);
// F1 and the help button open the dialog's topic.
void connectHelp(QDialog *dialog, QPushButton *help, const QString &topic);
// The parent for a dialog run now: the modal dialog in front, or the main window.
QWidget *dialogParent(QWidget *mainWindow);

} // namespace DialogSupport
