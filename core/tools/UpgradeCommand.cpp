#include "tools/UpgradeCommand.h"

#include "platform/TextUtils.h"
#include "rulebase/Rulebase.h"
#include "rulebase/RulebaseManager.h"
#include "tools/ConsoleUserInterface.h"
#include "tools/RulebaseFileScan.h"
#include "tools/ToolContext.h"
#include "tools/ToolExit.h"
#include "tools/ToolRulebaseLoader.h"
#include "xml/TarnXMLDoc.h"
#include "xml/TarnXMLElement.h"

#include <QCommandLineParser>
#include <QFileInfo>
#include <QSaveFile>
#include <QTemporaryDir>
#include <QTextStream>

QString UpgradeCommand::summary() const
{
    return QStringLiteral("Brings a 6.0 or 6.1 rulebase to schema 6.2.");
}

QString UpgradeCommand::synopsis() const
{
    return QStringLiteral("upgrade IN (-o OUT | --in-place)");
}

QString UpgradeCommand::description() const
{
    return QStringLiteral(
        "Reads a rulebase of schema 6.0 or 6.1, upgrades it as Quorin Administrator does on\n"
        "opening it, and writes it in schema 6.2. Its version number is kept. The file is\n"
        "written whole or not at all. OUT must not exist; --in-place replaces IN itself.\n"
        "A file already at 6.2 is copied to OUT, or left alone with --in-place.");
}

QCommandLineOption UpgradeCommand::outputOption()
{
    return QCommandLineOption({QStringLiteral("o"), QStringLiteral("output")},
                              QStringLiteral("The file to write; it must not exist."),
                              QStringLiteral("OUT"));
}

QCommandLineOption UpgradeCommand::inPlaceOption()
{
    return QCommandLineOption(QStringLiteral("in-place"),
                              QStringLiteral("Replace IN with the upgraded rulebase."));
}

QList<QCommandLineOption> UpgradeCommand::options() const
{
    return {outputOption(), inPlaceOption()};
}

int UpgradeCommand::execute(const QCommandLineParser &parser, ToolContext &context)
{
    const QStringList positional = parser.positionalArguments();
    if (positional.size() != 1)
        return usageError(context, QStringLiteral("give exactly one rulebase to upgrade"));
    const QString input = positional.first();
    const bool inPlace = parser.isSet(inPlaceOption());
    const bool hasOutput = parser.isSet(outputOption());
    if (inPlace == hasOutput)
        return usageError(context, QStringLiteral("give either -o OUT or --in-place"));
    const QString target = inPlace ? input : parser.value(outputOption());
    if (target.isEmpty())
        return usageError(context, QStringLiteral("the output file name is empty"));

    QString reason;
    if (!ToolRulebaseLoader::isReadable(input, reason)) {
        error(context, input + QStringLiteral(": ") + reason);
        return ToolExit::Failure;
    }
    if (!inPlace && QFileInfo::exists(target)) {
        error(context,
              target
                  + QStringLiteral(": already exists; remove it first, or use --in-place to "
                                   "upgrade a file where it stands"));
        return ToolExit::Failure;
    }

    RulebaseFileScan scan;
    if (!scan.scan(input)) {
        error(context,
              QStringLiteral("%1:%2:%3: not a well-formed rulebase: %4")
                  .arg(input)
                  .arg(scan.errorLine())
                  .arg(scan.errorColumn())
                  .arg(scan.errorText()));
        return ToolExit::Failure;
    }
    const QString version = scan.schemaVersion();
    const bool current = Text::same(version, RulebaseManager::currentSchemaVersion());
    if (!current && !Text::same(version, QStringLiteral("6.0"))
        && !Text::same(version, QStringLiteral("6.1"))) {
        error(
            context,
            input
                + QStringLiteral(": schema version \"%1\" can't be upgraded; only 6.0 and 6.1 can")
                      .arg(version));
        return ToolExit::Failure;
    }
    if (current && inPlace) {
        context.out() << input << ": already at schema " << version << "; nothing written\n";
        return ToolExit::Ok;
    }

    const LoadedRulebase loaded = ToolRulebaseLoader::load(input);
    if (!loaded.whole()) {
        // A partial read written out would lose rules for good.
        error(context, input + QStringLiteral(": could not be read completely; nothing written"));
        for (const QString &message : loaded.messages)
            context.err() << "  " << message << '\n';
        return ToolExit::Failure;
    }
    if (!writeRulebase(*loaded.rulebase, target, reason)) {
        error(context, target + QStringLiteral(": ") + reason);
        return ToolExit::Failure;
    }
    context.out() << input << ": schema " << version << " written as schema "
                  << RulebaseManager::currentSchemaVersion() << " to " << target << '\n';
    return ToolExit::Ok;
}

bool UpgradeCommand::writeRulebase(Rulebase &rulebase, const QString &target, QString &reason)
{
    // The program's save steps the version when auto-increment is on; an upgrade must not,
    // so it saves with the flag off, then puts the flag back into the saved tree.
    QTemporaryDir folder;
    if (!folder.isValid()) {
        reason = QStringLiteral("no temporary folder: ") + folder.errorString();
        return false;
    }
    const QString staging = folder.filePath(QStringLiteral("upgrade.qrb"));
    const bool autoIncrement = rulebase.AutoIncrementVersion();
    rulebase.setAutoIncrementVersion(false);
    ConsoleUserInterface recorder(nullptr);
    RulebaseManager manager;
    const bool saved = manager.Save(rulebase, staging);
    rulebase.setAutoIncrementVersion(autoIncrement);
    if (!saved) {
        const QStringList messages = recorder.messages();
        reason = messages.isEmpty() ? QStringLiteral("the rulebase could not be saved")
                                    : messages.join(QStringLiteral("; "));
        return false;
    }

    TarnXMLDoc doc;
    if (!doc.LoadFromFile(staging)) {
        reason = QStringLiteral("the saved rulebase could not be read back");
        return false;
    }
    doc.RootElement()
        .ElementByName(QStringLiteral("RulebaseProperties"))
        .setAttributeValueByName(QStringLiteral("AutoIncrementVersion"),
                                 Text::fromBool(autoIncrement));

    QSaveFile file(target);
    const QByteArray bytes = doc.XMLString().toUtf8();
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.commit()) {
        reason = file.errorString();
        return false;
    }
    return true;
}
