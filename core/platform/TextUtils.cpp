#include "platform/TextUtils.h"

#include "platform/QuorinError.h"

#include <cmath>
#include <limits>

namespace Text {

bool same(const QString &a, const QString &b)
{
    // The comparison folds unit by unit and never matches texts of unequal length. ASCII pairs
    // fold alone; from the first pair that is not ASCII on, it takes the rest itself.
    const qsizetype n = a.size();
    if (n != b.size())
        return false;
    const char16_t *const x = QStringView(a).utf16();
    const char16_t *const y = QStringView(b).utf16();
    for (qsizetype i = 0; i < n; ++i) {
        const char16_t c = x[i];
        const char16_t d = y[i];
        if (c == d)
            continue;
        if ((c | d) >= 0x80)
            return a.compare(b, Qt::CaseInsensitive) == 0;
        if ((c | 0x20) != (d | 0x20) || (c | 0x20) < u'a' || (c | 0x20) > u'z')
            return false;
    }
    return true;
}

double val(const QString &text)
{
    qsizetype i = 0;
    const qsizetype n = text.size();
    auto skipBlanks = [&] {
        while (i < n
               && (text[i] == u' ' || text[i] == u'\t' || text[i] == u'\n' || text[i] == u'\r'))
            ++i;
    };
    skipBlanks();
    QString number;
    if (i < n && (text[i] == u'-' || text[i] == u'+'))
        number += text[i++];
    bool digits = false;
    bool point = false;
    for (; i < n; ++i) {
        const QChar c = text[i];
        if (c.isDigit() && c.unicode() < 128) {
            number += c;
            digits = true;
        } else if (c == u'.' && !point) {
            number += c;
            point = true;
        } else if (c == u' ') {
            continue; // the runtime reads "1 2" as 12
        } else {
            break;
        }
    }
    if (!digits)
        return 0.0;
    if (i < n && (text[i] == u'e' || text[i] == u'E')) {
        QString exponent = QStringLiteral("e");
        qsizetype j = i + 1;
        if (j < n && (text[j] == u'-' || text[j] == u'+'))
            exponent += text[j++];
        bool expDigits = false;
        for (; j < n && text[j].isDigit() && text[j].unicode() < 128; ++j) {
            exponent += text[j];
            expDigits = true;
        }
        if (expDigits)
            number += exponent;
    }
    return number.toDouble();
}

static qint64 roundHalfEven(double value)
{
    return static_cast<qint64>(std::nearbyint(value)); // default rounding mode is to nearest even
}

qint32 valLong(const QString &text)
{
    const double v = val(text);
    if (!(v >= -2147483648.5 && v < 2147483647.5))
        throw QuorinError::overflow(QString());
    return static_cast<qint32>(roundHalfEven(v));
}

QString zeroPadded(qint64 number, int digits)
{
    if (number < 0)
        return QLatin1Char('-') + QString::number(-number).rightJustified(digits, QLatin1Char('0'));
    return QString::number(number).rightJustified(digits, QLatin1Char('0'));
}

QString fromBool(bool value)
{
    return value ? QStringLiteral("True") : QStringLiteral("False");
}

static bool parseNumber(const QString &text, double &out)
{
    const QString t = text.trimmed();
    if (t.isEmpty())
        return false;
    bool ok = false;
    out = t.toDouble(&ok);
    return ok && std::isfinite(out);
}

bool toBool(const QString &text, const QString &source)
{
    const QString t = text.trimmed();
    if (same(t, QStringLiteral("True")))
        return true;
    if (same(t, QStringLiteral("False")))
        return false;
    double number = 0;
    if (parseNumber(t, number))
        return number != 0.0;
    throw QuorinError::typeMismatch(source);
}

static char32_t unitAt(QStringView text, qsizetype i)
{
    return text[i].unicode();
}

static char32_t unitAt(QUtf8StringView text, qsizetype i)
{
    return uchar(text[i]);
}

// Plain decimal integers are nearly every number a file holds; they skip the general parse.
template<typename View>
static bool plainInteger(View text, qint64 &out)
{
    const qsizetype n = text.size();
    if (n == 0 || n > 18)
        return false;
    const bool negative = unitAt(text, 0) == U'-';
    if (negative && n == 1)
        return false;
    qint64 value = 0;
    for (qsizetype i = negative ? 1 : 0; i < n; ++i) {
        const char32_t c = unitAt(text, i);
        if (c < U'0' || c > U'9')
            return false;
        value = value * 10 + qint64(c - U'0');
    }
    out = negative ? -value : value;
    return true;
}

bool parsePlainInteger(QStringView text, qint64 &out)
{
    return plainInteger(text, out);
}

bool parsePlainInteger(QUtf8StringView text, qint64 &out)
{
    return plainInteger(text, out);
}

template<typename Int>
static Int toInt(const QString &text, const QString &source)
{
    qint64 plain = 0;
    if (parsePlainInteger(text, plain)) {
        if (plain < std::numeric_limits<Int>::min() || plain > std::numeric_limits<Int>::max())
            throw QuorinError::overflow(source);
        return static_cast<Int>(plain);
    }
    double number = 0;
    if (!parseNumber(text, number))
        throw QuorinError::typeMismatch(source);
    const double lo = double(std::numeric_limits<Int>::min()) - 0.5;
    const double hi = double(std::numeric_limits<Int>::max()) + 0.5;
    if (!(number >= lo && number < hi))
        throw QuorinError::overflow(source);
    return static_cast<Int>(roundHalfEven(number));
}

qint32 toLong(const QString &text, const QString &source)
{
    return toInt<qint32>(text, source);
}

qint16 toInteger(const QString &text, const QString &source)
{
    return toInt<qint16>(text, source);
}

float stringToSingle(const QString &text)
{
    QString t = text.trimmed();
    t.replace(QLatin1Char(','), QLatin1Char('.'));
    return static_cast<float>(val(t));
}

QString trimBlanks(const QString &text)
{
    qsizetype start = 0;
    qsizetype end = text.size();
    while (start < end && text[start] == u' ')
        ++start;
    while (end > start && text[end - 1] == u' ')
        --end;
    return text.mid(start, end - start);
}

} // namespace Text
