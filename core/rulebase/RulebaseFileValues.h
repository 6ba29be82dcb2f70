#pragma once

#include "xml/TarnXMLElement.h"
#include "xml/TarnXMLWriter.h"

#include <QString>

// Reading and writing attribute values by the file's encodings. A missing attribute, text that
// does not convert or a number out of range throws a QuorinError naming the attribute, which
// stops the section being read.
namespace RulebaseFileValues {

QString readText(const TarnXMLElement &element, const char *attribute);
bool readBool(const TarnXMLElement &element, const char *attribute);
qint32 readLong(const TarnXMLElement &element, const char *attribute);
qint16 readInteger(const TarnXMLElement &element, const char *attribute);

void writeText(TarnXMLWriter::Element &element, const char *attribute, const QString &value);
void writeBool(TarnXMLWriter::Element &element, const char *attribute, bool value);
void writeNumber(TarnXMLWriter::Element &element, const char *attribute, qint64 value);

// A required child element found by name; throws when it is missing.
TarnXMLElement requireChild(const TarnXMLElement &element, const char *name);

// Children of a list element are taken by position, whatever their names; `apply` gets each
// child and its position.
template<typename Apply>
void forEachChild(const TarnXMLElement &parent, Apply &&apply)
{
    const qint32 count = parent.ElementCount();
    for (qint32 i = 0; i < count; ++i)
        apply(parent.ElementAtPosition(i), i);
}

} // namespace RulebaseFileValues
