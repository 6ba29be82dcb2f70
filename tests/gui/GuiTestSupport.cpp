#include "GuiTestSupport.h"

#include <QApplication>
#include <QDialog>
#include <QElapsedTimer>
#include <QPushButton>
#include <QTimer>

#include <memory>

void whenModal(const QString &name, std::function<void(QDialog &)> act)
{
    auto *poll = new QTimer;
    auto clock = std::make_shared<QElapsedTimer>();
    clock->start();
    QObject::connect(poll, &QTimer::timeout, [poll, clock, name, act] {
        auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        const bool found = dialog && dialog->objectName() == name;
        if (!found && clock->elapsed() < 5000)
            return;
        poll->stop();
        poll->deleteLater();
        if (!found) {
            ADD_FAILURE() << "no dialog " << name.toStdString();
            if (dialog)
                dialog->done(QDialog::Rejected);
            return;
        }
        act(*dialog);
        if (dialog->isVisible()) {
            ADD_FAILURE() << name.toStdString() << " stayed open";
            dialog->done(QDialog::Rejected);
        }
    });
    poll->start(10);
}

void click(QWidget &parent, const char *button)
{
    if (auto *push = child<QPushButton>(parent, button))
        push->click();
}
