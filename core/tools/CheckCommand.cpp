#include "tools/CheckCommand.h"

#include "tools/CheckFinding.h"
#include "tools/RulebaseChecker.h"
#include "tools/RulebaseFileScan.h"
#include "tools/ToolContext.h"
#include "tools/ToolExit.h"
#include "tools/ToolRulebaseLoader.h"

#include <QCommandLineParser>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTextStream>

QString CheckCommand::summary() const
{
    return QStringLiteral("Reports the problems of rulebases, like a compiler.");
}

QString CheckCommand::synopsis() const
{
    return QStringLiteral("check [--format text|json] [--strict] FILE...");
}

QString CheckCommand::description() const
{
    return QStringLiteral(
        "Loads each rulebase as Quorin Administrator does and reports what it finds wrong:\n"
        "files that don't parse (with line and column), schemas older than 6.2, conditions\n"
        "with syntax errors or unknown vocabulary, patterns that don't compile, rules in a\n"
        "category or severity that doesn't exist, duplicate ids, coding conventions on no\n"
        "parser event and default violations out of range.\n"
        "\n"
        "Text output has one line per finding: FILE:LINE: error|warning: MESSAGE [code].\n"
        "LINE is that of the element in the file, 0 when it is not known. A summary goes to\n"
        "standard error. Errors give exit code 1; warnings do so only with --strict.");
}

QCommandLineOption CheckCommand::strictOption()
{
    return QCommandLineOption(QStringLiteral("strict"),
                              QStringLiteral("Warnings count as findings for the exit code."));
}

QList<QCommandLineOption> CheckCommand::options() const
{
    return {formatOption(), strictOption()};
}

int CheckCommand::execute(const QCommandLineParser &parser, ToolContext &context)
{
    bool json = false;
    if (!readJsonFormat(parser, context, json))
        return ToolExit::Failure;
    const QStringList files = parser.positionalArguments();
    if (files.isEmpty())
        return usageError(context, QStringLiteral("no rulebase file given"));
    const bool strict = parser.isSet(strictOption());

    int result = ToolExit::Ok;
    int errors = 0;
    int warnings = 0;
    QJsonArray fileReports;
    for (qsizetype n = 0; n < files.size(); ++n) {
        const QString &file = files.at(n);
        context.progress(
            QStringLiteral("Checking %1 (%2 of %3)").arg(file).arg(n + 1).arg(files.size()));
        QJsonObject report;
        report.insert(QStringLiteral("file"), file);

        QString reason;
        if (!ToolRulebaseLoader::isReadable(file, reason)) {
            error(context, file + QStringLiteral(": ") + reason);
            report.insert(QStringLiteral("ioError"), reason);
            fileReports.append(report);
            result = ToolExit::Failure;
            continue;
        }
        RulebaseFileScan scan;
        scan.scan(file);
        const LoadedRulebase loaded = ToolRulebaseLoader::load(file);
        const std::vector<CheckFinding> findings = RulebaseChecker::check(scan, loaded);

        int fileErrors = 0;
        int fileWarnings = 0;
        QJsonArray items;
        for (const CheckFinding &finding : findings) {
            (finding.isError() ? fileErrors : fileWarnings)++;
            if (json) {
                QJsonObject item;
                item.insert(QStringLiteral("line"), finding.line);
                item.insert(QStringLiteral("column"), finding.column);
                item.insert(QStringLiteral("severity"), finding.severityText());
                item.insert(QStringLiteral("code"), finding.code);
                item.insert(QStringLiteral("message"), finding.message);
                if (finding.ruleID != 0)
                    item.insert(QStringLiteral("ruleId"), finding.ruleID);
                items.append(item);
            } else {
                context.endProgress();
                context.out() << file << ':' << finding.line << ": " << finding.severityText()
                              << ": " << finding.message << " [" << finding.code << "]\n";
            }
        }
        errors += fileErrors;
        warnings += fileWarnings;
        report.insert(QStringLiteral("loaded"), loaded.rulebase != nullptr);
        report.insert(QStringLiteral("schemaVersion"), scan.schemaVersion());
        report.insert(QStringLiteral("errors"), fileErrors);
        report.insert(QStringLiteral("warnings"), fileWarnings);
        report.insert(QStringLiteral("findings"), items);
        fileReports.append(report);
        if (result == ToolExit::Ok && (fileErrors > 0 || (strict && fileWarnings > 0)))
            result = ToolExit::Findings;
    }
    context.endProgress();

    if (json) {
        QJsonObject root;
        root.insert(QStringLiteral("files"), fileReports);
        root.insert(QStringLiteral("errors"), errors);
        root.insert(QStringLiteral("warnings"), warnings);
        root.insert(QStringLiteral("exitCode"), result);
        context.out() << QJsonDocument(root).toJson(QJsonDocument::Indented);
    } else {
        context.err() << QStringLiteral("%1 error(s), %2 warning(s) in %3 file(s)\n")
                             .arg(errors)
                             .arg(warnings)
                             .arg(files.size());
    }
    return result;
}
