#include "gui/dialogs/DialogSupport.h"

#include "editors/NumberRange.h"
#include "platform/UserInterface.h"

#include <QApplication>
#include <QDialog>
#include <QFocusEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <QValidator>

namespace {

// Digits whose number lies in the range; a number still short of the minimum may be typed on.
class NumberValidator final : public QValidator
{
public:
    NumberValidator(const NumberRange &range, QObject *parent)
        : QValidator(parent)
        , m_range(range)
    {
    }

    State validate(QString &input, int &) const override
    {
        if (input.isEmpty())
            return Acceptable;
        qint64 value = 0;
        for (const QChar c : std::as_const(input)) {
            if (c < u'0' || c > u'9')
                return Invalid;
            value = value * 10 + (c.unicode() - u'0');
            if (value > m_range.maximum)
                return Invalid;
        }
        return value < m_range.minimum ? Intermediate : Acceptable;
    }

private:
    NumberRange m_range;
};

} // namespace

namespace DialogSupport {

QPushButton *button(const QString &objectName, const QString &caption, QWidget *parent)
{
    auto *push = new QPushButton(caption, parent);
    push->setObjectName(objectName);
    push->setAutoDefault(false);
    return push;
}

void digitsOnly(QLineEdit *box, const NumberRange &range)
{
    box->setValidator(new NumberValidator(range, box));
}

bool tabbedInto(const QEvent *event)
{
    if (event->type() != QEvent::FocusIn)
        return false;
    const Qt::FocusReason reason = static_cast<const QFocusEvent *>(event)->reason();
    return reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason;
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
