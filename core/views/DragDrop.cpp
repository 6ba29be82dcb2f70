#include "views/DragDrop.h"

#include <QTime>

namespace DragDrop {

namespace {
std::function<int()> &clock()
{
    static std::function<int()> current;
    return current;
}
} // namespace

QString payload(const QStringList &keys)
{
    return keys.join(QLatin1Char('|')) + QStringLiteral("||");
}

QString keyList(const QString &data)
{
    const qsizetype end = data.indexOf(QLatin1String("||"));
    return end < 0 ? data : data.left(end);
}

int secondsSinceMidnight()
{
    if (clock())
        return clock()();
    return QTime::currentTime().msecsSinceStartOfDay() / 1000;
}

void setClock(std::function<int()> newClock)
{
    clock() = std::move(newClock);
}

} // namespace DragDrop
