#pragma once

#include "tools/ToolCommand.h"

class Rulebase;

// qrbtool upgrade: brings a rulebase of schema 6.0 or 6.1 to 6.2 through the program's own
// load and save, written atomically, and never over an existing file unless asked.
class UpgradeCommand final : public ToolCommand
{
public:
    QString name() const override { return QStringLiteral("upgrade"); }
    QString summary() const override;
    QString synopsis() const override;
    QString description() const override;

    // Saves `rulebase` to `target` in the current schema, keeping its version number as it
    // is (a save by the program would step it). Atomic: on failure `target` is untouched.
    static bool writeRulebase(Rulebase &rulebase, const QString &target, QString &reason);

protected:
    QList<QCommandLineOption> options() const override;
    int execute(const QCommandLineParser &parser, ToolContext &context) override;

private:
    static QCommandLineOption outputOption();
    static QCommandLineOption inPlaceOption();
};
