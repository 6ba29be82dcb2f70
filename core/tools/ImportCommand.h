#pragma once

#include "tools/ToolCommand.h"

// qrbtool import: adds the components and references that projects and libraries use to a
// rulebase's authorised items.
class ImportCommand final : public ToolCommand
{
public:
    QString name() const override { return QStringLiteral("import"); }
    QString summary() const override;
    QString synopsis() const override;
    QString description() const override;

protected:
    QList<QCommandLineOption> options() const override;
    int execute(const QCommandLineParser &parser, ToolContext &context) override;

private:
    static QCommandLineOption fromOption();
    static QCommandLineOption dryRunOption();
};
