#include "tools/DiffCommand.h"

#include "tools/RulebaseDiff.h"
#include "tools/TextDiff.h"
#include "tools/ToolContext.h"
#include "tools/ToolExit.h"
#include "tools/ToolRulebaseLoader.h"

#include <QCommandLineParser>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTextStream>

namespace {

// One line per value: line ends, tabs and quotes are shown escaped.
QString shown(const QString &value)
{
    QString text = value;
    text.replace(QLatin1Char('\\'), QStringLiteral("\\\\"))
        .replace(QLatin1Char('"'), QStringLiteral("\\\""))
        .replace(QStringLiteral("\r\n"), QStringLiteral("\\n"))
        .replace(QLatin1Char('\n'), QStringLiteral("\\n"))
        .replace(QLatin1Char('\r'), QStringLiteral("\\n"))
        .replace(QLatin1Char('\t'), QStringLiteral("\\t"));
    return QLatin1Char('"') + text + QLatin1Char('"');
}

QString sectionWords(const QString &section)
{
    QString words = section;
    return words.replace(QLatin1Char('-'), QLatin1Char(' '));
}

} // namespace

QString DiffCommand::summary() const
{
    return QStringLiteral("Shows what changed between two rulebases.");
}

QString DiffCommand::synopsis() const
{
    return QStringLiteral("diff [--format text|json] OLD NEW");
}

QString DiffCommand::description() const
{
    return QStringLiteral(
        "Compares two rulebases by content, not by text: properties, default violations,\n"
        "categories, severities, tags, authorised components and references, and rules,\n"
        "keyed by rule id. Each item added, removed or changed is listed with the fields\n"
        "that differ; conditions and other texts of several lines as unified diffs.\n"
        "Exit code 0 when they are the same, 1 when they differ.");
}

QList<QCommandLineOption> DiffCommand::options() const
{
    return {formatOption()};
}

int DiffCommand::execute(const QCommandLineParser &parser, ToolContext &context)
{
    bool json = false;
    if (!readJsonFormat(parser, context, json))
        return ToolExit::Failure;
    const QStringList files = parser.positionalArguments();
    if (files.size() != 2)
        return usageError(context, QStringLiteral("give two rulebases: OLD NEW"));

    LoadedRulebase sides[2];
    for (int i = 0; i < 2; ++i) {
        QString reason;
        if (!ToolRulebaseLoader::isReadable(files.at(i), reason)) {
            error(context, files.at(i) + QStringLiteral(": ") + reason);
            return ToolExit::Failure;
        }
        context.progress(QStringLiteral("Reading %1").arg(files.at(i)));
        sides[i] = ToolRulebaseLoader::load(files.at(i));
        if (!sides[i].rulebase || !sides[i].messages.isEmpty()) {
            // A rulebase read in part would show its missing rules as removed.
            error(
                context,
                files.at(i)
                    + QStringLiteral(": could not be read completely; 'qrbtool check' tells why"));
            for (const QString &message : sides[i].messages)
                context.err() << "  " << message << '\n';
            return ToolExit::Failure;
        }
    }
    context.endProgress();

    const std::vector<RulebaseDiff::Item> items
        = RulebaseDiff::compare(*sides[0].rulebase, *sides[1].rulebase);
    const int result = items.empty() ? ToolExit::Ok : ToolExit::Findings;

    if (json) {
        QJsonArray changes;
        for (const RulebaseDiff::Item &item : items) {
            QJsonObject change;
            change.insert(QStringLiteral("section"), item.section);
            change.insert(QStringLiteral("key"), item.key);
            change.insert(QStringLiteral("title"), item.title);
            change.insert(QStringLiteral("change"), RulebaseDiff::changeText(item.change));
            QJsonArray fields;
            for (const RulebaseDiff::Field &field : item.fields) {
                QJsonObject entry;
                entry.insert(QStringLiteral("field"), field.name);
                if (item.change != RulebaseDiff::Change::Added)
                    entry.insert(QStringLiteral("old"), field.oldValue);
                if (item.change != RulebaseDiff::Change::Removed)
                    entry.insert(QStringLiteral("new"), field.newValue);
                if (!field.lines.isEmpty())
                    entry.insert(QStringLiteral("diff"), QJsonArray::fromStringList(field.lines));
                fields.append(entry);
            }
            change.insert(QStringLiteral("fields"), fields);
            changes.append(change);
        }
        QJsonObject root;
        root.insert(QStringLiteral("old"), files.at(0));
        root.insert(QStringLiteral("new"), files.at(1));
        root.insert(QStringLiteral("identical"), items.empty());
        root.insert(QStringLiteral("changes"), changes);
        context.out() << QJsonDocument(root).toJson(QJsonDocument::Indented);
        return result;
    }

    if (items.empty())
        return result;
    QTextStream &out = context.out();
    out << "--- " << files.at(0) << "\n+++ " << files.at(1) << '\n';
    for (const RulebaseDiff::Item &item : items) {
        out << RulebaseDiff::changeText(item.change) << ' ' << sectionWords(item.section);
        if (!item.key.isEmpty())
            out << ' ' << item.key;
        if (!item.title.isEmpty())
            out << ' ' << item.title;
        out << '\n';
        // A removed item is named only; what it held is in the old file.
        if (item.change == RulebaseDiff::Change::Removed)
            continue;
        for (const RulebaseDiff::Field &field : item.fields) {
            if (item.change == RulebaseDiff::Change::Added) {
                // A new condition reads best as the block it is.
                const QStringList lines = TextDiff::splitLines(field.newValue);
                if (lines.size() > 1) {
                    out << "    " << field.name << ":\n";
                    for (const QString &line : lines)
                        out << "        " << line << '\n';
                } else {
                    out << "    " << field.name << ": " << shown(field.newValue) << '\n';
                }
            } else if (!field.lines.isEmpty()) {
                out << "    " << field.name << ":\n";
                for (const QString &line : field.lines)
                    out << "        " << line << '\n';
            } else {
                out << "    " << field.name << ": " << shown(field.oldValue) << " -> "
                    << shown(field.newValue) << '\n';
            }
        }
    }
    return result;
}
