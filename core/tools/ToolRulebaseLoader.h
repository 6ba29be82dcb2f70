#pragma once

#include <QString>
#include <QStringList>

#include <memory>

class Rulebase;

// A rulebase read the way the administrator's program reads it, hidden categories included,
// with what the load said on the way: the messages of a failed load and the reports of
// sections that stopped part-way.
struct LoadedRulebase
{
    // Null when the load failed.
    std::shared_ptr<Rulebase> rulebase;
    // Every box the load showed, in order; empty for a clean load.
    QStringList messages;
    // Why the XML parser refused the file, when it did: the load's box only says it failed.
    QString parseError;

    // Loaded, and no section stopped part-way: only such a rulebase may be written out.
    bool whole() const;
};

class ToolRulebaseLoader final
{
public:
    // False, with the reason, when the file isn't there or can't be opened for reading; the
    // loader itself only says that parsing failed.
    static bool isReadable(const QString &filename, QString &reason);
    static LoadedRulebase load(const QString &filename);
};
