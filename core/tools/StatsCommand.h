#pragma once

#include "tools/ToolCommand.h"

// qrbtool stats: the line statistics of Visual Basic projects and project groups.
class StatsCommand final : public ToolCommand
{
public:
    QString name() const override { return QStringLiteral("stats"); }
    QString summary() const override;
    QString synopsis() const override;
    QString description() const override;

protected:
    QList<QCommandLineOption> options() const override;
    int execute(const QCommandLineParser &parser, ToolContext &context) override;

private:
    static QCommandLineOption filesOption();
};
