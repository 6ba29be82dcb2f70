#include "rulebase/RulebaseFileValues.h"

#include "platform/QuorinError.h"
#include "platform/TextUtils.h"

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

} // namespace

QString readText(const TarnXMLElement &element, const char *attribute)
{
    try {
        return element.AttributeValueByName(QLatin1StringView(attribute));
    } catch (const QuorinError &e) {
        throw QuorinError(e.number(), e.source(), e.description() + where(element, attribute));
    }
}

bool readBool(const TarnXMLElement &element, const char *attribute)
{
    return convert(element, attribute, [](const QString &t) { return Text::toBool(t, QString()); });
}

qint32 readLong(const TarnXMLElement &element, const char *attribute)
{
    return convert(element, attribute, [](const QString &t) { return Text::toLong(t, QString()); });
}

qint16 readInteger(const TarnXMLElement &element, const char *attribute)
{
    return convert(
        element, attribute, [](const QString &t) { return Text::toInteger(t, QString()); });
}

void writeText(TarnXMLElement &element, const char *attribute, const QString &value)
{
    element.setAttributeValueByName(QLatin1String(attribute), value);
}

void writeBool(TarnXMLElement &element, const char *attribute, bool value)
{
    writeText(element, attribute, Text::fromBool(value));
}

void writeNumber(TarnXMLElement &element, const char *attribute, qint64 value)
{
    writeText(element, attribute, QString::number(value));
}

TarnXMLElement requireChild(const TarnXMLElement &element, const char *name)
{
    TarnXMLElement child = element.ElementByName(QLatin1String(name));
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
