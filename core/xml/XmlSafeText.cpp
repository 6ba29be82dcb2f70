#include "xml/XmlSafeText.h"

#include <algorithm>

namespace {

// The length of the character at `i` that XML 1.0 allows (1, or 2 for a surrogate pair), or 0
// for one it forbids.
qsizetype allowedLength(QStringView text, qsizetype i)
{
    const char16_t u = text[i].unicode();
    if (u < 0x20)
        return u == u'\t' || u == u'\n' || u == u'\r' ? 1 : 0;
    if (QChar::isHighSurrogate(u))
        return i + 1 < text.size() && QChar::isLowSurrogate(text[i + 1].unicode()) ? 2 : 0;
    if (QChar::isLowSurrogate(u) || u >= 0xFFFE)
        return 0;
    return 1;
}

qsizetype firstForbidden(QStringView text)
{
    qsizetype i = 0;
    while (i < text.size()) {
        const qsizetype length = allowedLength(text, i);
        if (length == 0)
            break;
        i += length;
    }
    return i;
}

} // namespace

bool isXmlSafeText(QStringView text)
{
    return firstForbidden(text) == text.size();
}

QString xmlSafeText(const QString &text)
{
    qsizetype i = firstForbidden(text);
    if (i == text.size())
        return text;
    QString safe;
    safe.reserve(text.size() - 1);
    safe.append(text.constData(), i);
    while (i < text.size()) {
        const qsizetype length = allowedLength(text, i);
        safe.append(text.constData() + i, length);
        i += length == 0 ? 1 : length;
    }
    return safe;
}

bool isXmlSafeAscii(QUtf8StringView utf8)
{
    return std::all_of(utf8.begin(), utf8.end(), [](char c) {
        const auto u = static_cast<unsigned char>(c);
        return (u >= 0x20 && u < 0x80) || u == '\t' || u == '\n' || u == '\r';
    });
}
