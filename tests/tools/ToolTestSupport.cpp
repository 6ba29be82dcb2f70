#include "ToolTestSupport.h"

#include "rulebase/Rulebase.h"
#include "rulebase/RulebaseManager.h"
#include "support/ScriptedUserInterface.h"
#include "support/TestEnvironment.h"
#include "tools/QrbTool.h"
#include "tools/ToolContext.h"

#include <QJsonDocument>
#include <QRegularExpression>
#include <QTextStream>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

ToolRun runQrbTool(const QStringList &arguments)
{
    ToolRun run;
    QTextStream out(&run.out);
    QTextStream err(&run.err);
    ToolContext context(out, err, false);
    QrbTool tool;
    run.exitCode = tool.run(arguments, context);
    out.flush();
    err.flush();
    return run;
}

QJsonObject parseJsonObject(const QString &text)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(text.toUtf8(), &error);
    EXPECT_EQ(error.error, QJsonParseError::NoError)
        << error.errorString().toStdString() << " in:\n"
        << text.toStdString();
    EXPECT_TRUE(document.isObject());
    return document.object();
}

QByteArray sampleBytes()
{
    return readFile(TestEnvironment::sampleRulebase());
}

int lineOf(const QByteArray &text, const QByteArray &marker)
{
    const qsizetype at = text.indexOf(marker);
    return at < 0 ? 0 : int(text.left(at).count('\n')) + 1;
}

int replaceOnLine(QByteArray &text,
                  const QByteArray &marker,
                  const QByteArray &from,
                  const QByteArray &to,
                  int linesAfter)
{
    const qsizetype at = text.indexOf(marker);
    if (at < 0) {
        ADD_FAILURE() << "no line holds " << marker.toStdString();
        return 0;
    }
    const int markerLine = lineOf(text, marker);
    qsizetype start = text.lastIndexOf('\n', at) + 1;
    for (int i = 0; i < linesAfter; ++i)
        start = text.indexOf('\n', start) + 1;
    qsizetype end = text.indexOf('\n', start);
    if (end < 0)
        end = text.size();
    QByteArray line = text.mid(start, end - start);
    if (!line.contains(from)) {
        ADD_FAILURE() << "the line of " << marker.toStdString() << " lacks " << from.toStdString();
        return 0;
    }
    line.replace(line.indexOf(from), from.size(), to);
    text.replace(start, end - start, line);
    return markerLine;
}

QByteArray sampleInOldSchema(const QString &version)
{
    QString text = QString::fromUtf8(sampleBytes());
    const auto drop = [&text](const QString &pattern) { text.remove(QRegularExpression(pattern)); };
    // What the upgrade to 6.2 adds.
    drop(u" TagDescription=\"[^\"]*\""_s);
    drop(u" TagExample=\"[^\"]*\""_s);
    drop(u" ExclusionList=\"[^\"]*\""_s);
    drop(u" CaseSensitive=\"[^\"]*\""_s);
    drop(u" ArrayTag=\"[^\"]*\""_s);
    if (version == "6.0"_L1) {
        // What the upgrade to 6.1 adds.
        drop(u" ToleranceCount=\"[^\"]*\""_s);
        drop(u" ToleranceImpact=\"[^\"]*\""_s);
        drop(u" TolerancePercentageComments=\"[^\"]*\""_s);
        drop(u" ToleranceCyclomaticComplexity=\"[^\"]*\""_s);
        drop(u"<Report>[\\s\\S]*</Report>\\s*"_s);
        drop(u"<Report/>\\s*"_s);
    }
    text.replace(u"SchemaVersion=\"6.2\""_s, u"SchemaVersion=\"%1\""_s.arg(version));
    return text.toUtf8();
}

std::shared_ptr<Rulebase> loadQuietly(const QString &filename)
{
    ScriptedUserInterface ui;
    RulebaseManager::setAdministratorOverride(true);
    auto rulebase = RulebaseManager().LoadRulebase(filename);
    EXPECT_TRUE(ui.messages.empty()) << ui.messageTexts().join(QLatin1Char('\n')).toStdString();
    return rulebase;
}
