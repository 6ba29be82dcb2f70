#pragma once

#include <QHash>
#include <QList>
#include <QString>

// A quick pass over a rulebase file's text that keeps what the document tree forgets: where
// each element stands (line numbers for messages), the parser's error with its line and
// column, and every list entry as written, duplicates included, before any loader merges or
// refuses them. Sections are addressed by path below the root, "Rules/CodingConventions",
// ignoring case as the loader does.
class RulebaseFileScan final
{
public:
    struct Entry
    {
        QString name;
        qint64 line = 0;
        // The entry's number as written: RuleID, ID or SeverityLevel, whichever it has.
        QString id;
        bool hasId = false;
    };

    // False when the file can't be read or isn't well-formed; what was seen before stays.
    bool scan(const QString &filename);
    bool scanText(const QByteArray &text);

    bool wellFormed() const { return m_errorText.isEmpty(); }
    QString errorText() const { return m_errorText; }
    qint64 errorLine() const { return m_errorLine; }
    qint64 errorColumn() const { return m_errorColumn; }

    QString rootName() const { return m_rootName; }
    bool hasSchemaVersion() const { return m_hasSchemaVersion; }
    QString schemaVersion() const { return m_schemaVersion; }

    // 0 when the element was not seen; the empty path is the root.
    qint64 lineOf(const QString &path) const;
    bool contains(const QString &path) const { return lineOf(path) != 0; }
    // The children of a section or of a list below "Rules", in file order.
    QList<Entry> entries(const QString &path) const;

private:
    QString m_errorText;
    qint64 m_errorLine = 0;
    qint64 m_errorColumn = 0;
    QString m_rootName;
    bool m_hasSchemaVersion = false;
    QString m_schemaVersion;
    QHash<QString, qint64> m_lines;
    QHash<QString, QList<Entry>> m_entries;
};
