// libFuzzer entry: the bytes as UTF-8 and as UTF-16 through the syntax check, the colouring and
// the completion. Any crash, hang or sanitizer report is a fault of core/basic.
#include "basic/BasicColouring.h"
#include "basic/BasicCompletion.h"
#include "basic/BasicSyntaxChecker.h"
#include "basic/ConditionRules.h"

#include <QString>

#include <cstddef>
#include <cstdint>

namespace {

void exercise(const QString &text)
{
    BasicSyntaxChecker checker;
    checker.check(text);
    ConditionRules::CheckCondition(text, 5);
    bool continued = false;
    for (const QStringView line : QStringView(text).tokenize(u'\n'))
        BasicColouring::colourLine(line, continued);
    for (int caret = 0; caret <= text.size(); caret += 1 + int(text.size() / 16))
        BasicCompletion::contextAt(text, caret);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const auto *bytes = reinterpret_cast<const char *>(data);
    exercise(QString::fromUtf8(bytes, qsizetype(size)));
    exercise(QString(reinterpret_cast<const QChar *>(data), qsizetype(size / 2)));
    return 0;
}
