#pragma once

#include "tools/ToolCommand.h"

// qrbtool preview: what a rulebase would report on Visual Basic projects, rule by rule and
// file by file, as text, JSON or SARIF.
class PreviewCommand final : public ToolCommand
{
public:
    QString name() const override { return QStringLiteral("preview"); }
    QString summary() const override;
    QString synopsis() const override;
    QString description() const override;

protected:
    QList<QCommandLineOption> options() const override;
    int execute(const QCommandLineParser &parser, ToolContext &context) override;

private:
    static QCommandLineOption previewFormatOption();
    static QCommandLineOption ruleOption();
};
