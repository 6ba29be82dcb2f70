#include "rulebase/RulebaseFileValues.h"

#include "platform/QuorinError.h"
#include "platform/TextUtils.h"

#include <charconv>
#include <limits>

namespace RulebaseFileValues {

namespace {

QString where(const TarnXMLElement &element, const char *attribute)
{
    return QStringLiteral(" (attribute '%1' of element '%2')")
        .arg(QLatin1String(attribute), element ? element.ElementName() : QStringLiteral("?"));
}

template<typename Convert>
auto convert(const TarnXMLElement &element, const char *attribute, Convert &&conversion)
{
    const QString text = readText(element, attribute);
    try {
        return conversion(text);
    } catch (const QuorinError &e) {
        throw QuorinError(e.number(), e.source(), e.description() + where(element, attribute));
    }
}

// A plain integer in range, read in place; false sends the caller the general way.
template<typename Int>
bool readPlain(const TarnXMLElement &element, const char *attribute, Int &value)
{
    qint64 plain = 0;
    if (!Text::parsePlainInteger(element.AttributeUtf8ByName(QLatin1StringView(attribute)), plain)
        || plain < std::numeric_limits<Int>::min() || plain > std::numeric_limits<Int>::max())
        return false;
    value = Int(plain);
    return true;
}

} // namespace

QString readText(const TarnXMLElement &element, const char *attribute)
{
    try {
        return element.AttributeValueByName(QLatin1StringView(attribute));
    } catch (const QuorinError &e) {
        throw QuorinError(e.number(), e.source(), e.description() + where(element, attribute));
    }
}

// "True", "False" and plain integers, nearly every value a file holds, are read from the
// stored text in place; anything else, a missing attribute too, goes the general way.
bool readBool(const TarnXMLElement &element, const char *attribute)
{
    const QUtf8StringView stored = element.AttributeUtf8ByName(QLatin1StringView(attribute));
    if (stored == "True")
        return true;
    if (stored == "False")
        return false;
    return convert(element, attribute, [](const QString &t) { return Text::toBool(t, QString()); });
}

qint32 readLong(const TarnXMLElement &element, const char *attribute)
{
    qint32 value = 0;
    if (readPlain(element, attribute, value))
        return value;
    return convert(element, attribute, [](const QString &t) { return Text::toLong(t, QString()); });
}

qint16 readInteger(const TarnXMLElement &element, const char *attribute)
{
    qint16 value = 0;
    if (readPlain(element, attribute, value))
        return value;
    return convert(
        element, attribute, [](const QString &t) { return Text::toInteger(t, QString()); });
}

void writeText(TarnXMLWriter::Element &element, const char *attribute, const QString &value)
{
    element.setAttribute(QLatin1String(attribute), value);
}

void writeBool(TarnXMLWriter::Element &element, const char *attribute, bool value)
{
    element.setAttribute(QLatin1String(attribute), QUtf8StringView(value ? "True" : "False"));
}

void writeNumber(TarnXMLWriter::Element &element, const char *attribute, qint64 value)
{
    // The digits QString::number gives, without a QString.
    char digits[24];
    const auto end = std::to_chars(digits, digits + sizeof digits, value).ptr;
    element.setAttribute(QLatin1String(attribute), QUtf8StringView(digits, end - digits));
}

TarnXMLElement requireChild(const TarnXMLElement &element, const char *name)
{
    TarnXMLElement child = element.ElementByName(QLatin1StringView(name));
    if (!child) {
        throw QuorinError(
            ErrorNumber::ObjectNotSet,
            QString(),
            QStringLiteral(
                "Object variable or With block variable not set (no element '%1' under '%2')")
                .arg(QLatin1String(name), element.ElementName()));
    }
    return child;
}

} // namespace RulebaseFileValues
