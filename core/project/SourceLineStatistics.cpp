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
