#pragma once

#include "tools/ToolCommand.h"

// qrbtool doc: the HTML coding standards document of a rulebase.
class DocCommand final : public ToolCommand
{
public:
    QString name() const override { return QStringLiteral("doc"); }
    QString summary() const override;
    QString synopsis() const override;
    QString description() const override;

protected:
    QList<QCommandLineOption> options() const override;
    int execute(const QCommandLineParser &parser, ToolContext &context) override;

private:
    static QCommandLineOption outputOption();
    static QCommandLineOption organisationOption();
};
