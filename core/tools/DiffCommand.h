#pragma once

#include "tools/ToolCommand.h"

// qrbtool diff: what changed between two rulebases, item by item and field by field, with
// conditions as unified diffs of their lines.
class DiffCommand final : public ToolCommand
{
public:
    QString name() const override { return QStringLiteral("diff"); }
    QString summary() const override;
    QString synopsis() const override;
    QString description() const override;

protected:
    QList<QCommandLineOption> options() const override;
    int execute(const QCommandLineParser &parser, ToolContext &context) override;
};
