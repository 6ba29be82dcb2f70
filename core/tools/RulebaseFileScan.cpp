#include "tools/RulebaseFileScan.h"

#include <QFile>
#include <QStringList>
#include <QXmlStreamReader>

bool RulebaseFileScan::scan(const QString &filename)
{
    QFile file(filename);
    if (!file.open(QIODevice::ReadOnly)) {
        m_errorText = file.errorString();
        return false;
    }
    return scanText(file.readAll());
}

bool RulebaseFileScan::scanText(const QByteArray &text)
{
    *this = RulebaseFileScan();
    QXmlStreamReader reader(text);
    QStringList path; // below the root, lower case
    int depth = 0;
    // Inside the root, white space between elements comes as tokens of its own, so the line
    // where the token before ended is that of an element's "<", not of its closing ">".
    qint64 lineBefore = 1;
    while (!reader.atEnd()) {
        const QXmlStreamReader::TokenType token = reader.readNext();
        if (token == QXmlStreamReader::StartElement) {
            const QString name = reader.name().toString();
            if (depth == 0) {
                m_rootName = name;
                // The prolog's white space gives no token: the root's line is where it ends.
                m_lines.insert(QString(), reader.lineNumber());
                const QXmlStreamAttributes attributes = reader.attributes();
                m_hasSchemaVersion = attributes.hasAttribute(QStringLiteral("SchemaVersion"));
                m_schemaVersion = attributes.value(QStringLiteral("SchemaVersion")).toString();
            } else {
                const QString parent = path.join(QLatin1Char('/'));
                path << name.toLower();
                const QString key = path.join(QLatin1Char('/'));
                if (!m_lines.contains(key))
                    m_lines.insert(key, lineBefore);
                // Entries of the sections, and of the two rule lists below "Rules".
                if (depth == 2 || (depth == 3 && path.first() == QLatin1String("rules"))) {
                    Entry entry;
                    entry.name = name;
                    entry.line = lineBefore;
                    const QXmlStreamAttributes attributes = reader.attributes();
                    for (const char *id : {"RuleID", "ID", "SeverityLevel"}) {
                        if (attributes.hasAttribute(QLatin1String(id))) {
                            entry.id = attributes.value(QLatin1String(id)).toString();
                            entry.hasId = true;
                            break;
                        }
                    }
                    m_entries[parent].append(entry);
                }
            }
            ++depth;
        } else if (token == QXmlStreamReader::EndElement) {
            --depth;
            if (!path.isEmpty() && depth > 0)
                path.removeLast();
        }
        lineBefore = reader.lineNumber();
    }
    if (reader.hasError()) {
        m_errorText = reader.errorString();
        m_errorLine = reader.lineNumber();
        m_errorColumn = reader.columnNumber();
        return false;
    }
    if (m_rootName.isEmpty()) {
        m_errorText = QStringLiteral("The file holds no XML element.");
        return false;
    }
    return true;
}

qint64 RulebaseFileScan::lineOf(const QString &path) const
{
    return m_lines.value(path.toLower(), 0);
}

QList<RulebaseFileScan::Entry> RulebaseFileScan::entries(const QString &path) const
{
    return m_entries.value(path.toLower());
}
