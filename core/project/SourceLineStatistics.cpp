#include "project/SourceLineStatistics.h"

#include "platform/ErrorFrame.h"
#include "platform/TextUtils.h"
#include "project/modSource.h"

#include <limits>

namespace {

constexpr const char *Module = "SourceLineStatistics";

// One more on a counter; past the 32-bit range it fails and the counter keeps its value.
void addOne(qint32 &counter)
{
    if (counter == std::numeric_limits<qint32>::max())
        throw QuorinError::overflow(QString::fromLatin1(Module));
    ++counter;
}

} // namespace

void SourceLineStatistics::IncrementCount(qint32 lineType)
{
    guardedVoid("IncrementCount", Module, [&] {
        switch (lineType) {
        case 0:
            addOne(m_blankLines);
            break;
        case 1:
            addOne(m_commentOnlyLines);
            break;
        case 2:
            addOne(m_codeLines);
            addOne(m_inLineCommentLines);
            break;
        case 3:
            addOne(m_codeLines);
            break;
        default:
            return;
        }
        addOne(m_totalLines);
    });
}

void SourceLineStatistics::IncrementCount(SourceLineType lineType)
{
    IncrementCount(static_cast<qint32>(lineType));
}

void SourceLineStatistics::IncrementCount(qint32 lineType, qint64 times)
{
    qint32 *counters[3] = {&m_totalLines, nullptr, nullptr};
    switch (lineType) {
    case 0:
        counters[1] = &m_blankLines;
        break;
    case 1:
        counters[1] = &m_commentOnlyLines;
        break;
    case 2:
        counters[1] = &m_codeLines;
        counters[2] = &m_inLineCommentLines;
        break;
    case 3:
        counters[1] = &m_codeLines;
        break;
    default:
        return;
    }
    for (const qint32 *counter : counters) {
        if (counter && times > qint64(std::numeric_limits<qint32>::max()) - *counter) {
            // Some line would fail: line by line, each failing as it would.
            for (qint64 i = 0; i < times; ++i)
                IncrementCount(lineType);
            return;
        }
    }
    for (qint32 *counter : counters) {
        if (counter)
            *counter += qint32(times);
    }
}

bool SourceLineStatistics::SourceLineStatByName(const QString &name, qint32 &value) const
{
    const std::pair<const char *, qint32> counters[] = {
        {"TotalLineCount", m_totalLines},
        {"CodeLineCount", m_codeLines},
        {"BlankLineCount", m_blankLines},
        {"CommentLineCount", m_commentOnlyLines},
        {"InLineCommentCount", m_inLineCommentLines},
    };
    for (const auto &[counterName, counter] : counters) {
        if (Text::same(name, QLatin1String(counterName))) {
            value = counter;
            return true;
        }
    }
    return false;
}
