#include "gui/dialogs/DialogSupport.h"

#include "platform/UserInterface.h"

#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpressionValidator>
#include <QShortcut>

namespace DialogSupport {

QPushButton *button(const QString &objectName, const QString &caption, QWidget *parent)
{
    auto *push = new QPushButton(caption, parent);
    push->setObjectName(objectName);
    push->setAutoDefault(false);
    return push;
}

void digitsOnly(QLineEdit *box)
{
    box->setValidator(new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[0-9]*")), box));
}

void connectHelp(QDialog *dialog, QPushButton *help, const QString &topic)
{
    const auto show = [topic] { UserInterface::current().showHelp(HelpCommand::Topic, topic, 0); };
    QObject::connect(help, &QPushButton::clicked, dialog, show);
    auto *f1 = new QShortcut(QKeySequence(Qt::Key_F1), dialog);
    QObject::connect(f1, &QShortcut::activated, dialog, show);
}

QWidget *dialogParent(QWidget *mainWindow)
{
    if (QWidget *modal = QApplication::activeModalWidget())
        return modal;
    return mainWindow;
}

} // namespace DialogSupport
