#pragma once

#include "tools/ToolCommand.h"

// qrbtool check: loads each rulebase as the administrator's program would and reports every
// problem found, one per line like a compiler, or as JSON.
class CheckCommand final : public ToolCommand
{
public:
    QString name() const override { return QStringLiteral("check"); }
    QString summary() const override;
    QString synopsis() const override;
    QString description() const override;

protected:
    QList<QCommandLineOption> options() const override;
    int execute(const QCommandLineParser &parser, ToolContext &context) override;

private:
    static QCommandLineOption strictOption();
};
