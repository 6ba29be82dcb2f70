#include "basic/ScriptText.h"

namespace ScriptText {

QString toEditor(const QString &text)
{
    if (!text.contains(QLatin1Char('\r')))
        return text;
    QString result;
    result.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        if (c == u'\r') {
            result += QLatin1Char('\n');
            if (i + 1 < text.size() && text[i + 1] == u'\n')
                ++i;
        } else {
            result += c;
        }
    }
    return result;
}

QString fromEditor(const QString &text)
{
    QString lf = toEditor(text);
    return lf.replace(QLatin1Char('\n'), QLatin1String("\r\n"));
}

} // namespace ScriptText
