#pragma once

#include "tools/ToolCommand.h"

// qrbtool scripts: the condition script file of a rulebase, for the reviewer.
class ScriptsCommand final : public ToolCommand
{
public:
    QString name() const override { return QStringLiteral("scripts"); }
    QString summary() const override;
    QString synopsis() const override;
    QString description() const override;

protected:
    QList<QCommandLineOption> options() const override;
    int execute(const QCommandLineParser &parser, ToolContext &context) override;

private:
    static QCommandLineOption outputOption();
};
