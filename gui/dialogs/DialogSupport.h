#pragma once

#include <QString>

class QDialog;
class QEvent;
struct NumberRange;
class QLineEdit;
class QPushButton;
class QWidget;

// Small pieces every rulebase-wide dialog shares.
namespace DialogSupport {

// A push button with its caption and object name.
QPushButton *button(const QString &objectName, const QString &caption, QWidget *parent = nullptr);
// Lets only digits into a box, as the number boxes take nothing else, and no more than the
// range of the value behind it: a keystroke or paste that would leave it is refused.
void digitsOnly(QLineEdit *box, const NumberRange &range);
// Focus that came by Tab or Backtab: only then does a field select all its text, ready to be
// typed over. Focus back from a picker or a click keeps the caret where it was, so a picked
// placeholder goes in there instead of over the whole text.
bool tabbedInto(const QEvent *event);
// F1 and the help button open the dialog's topic.
void connectHelp(QDialog *dialog, QPushButton *help, const QString &topic);
// The parent for a dialog run now: the modal dialog in front, or the main window.
QWidget *dialogParent(QWidget *mainWindow);

} // namespace DialogSupport
