#pragma once

#include <QString>
#include <QStringList>

#include <utility>
#include <vector>

class Rulebase;

// The semantic differences of two rulebases: properties, default violations, categories,
// severities, the three tag sets, authorised components and references, and rules, each
// item keyed by its number or name (rules by id), compared field by field. Items come in a
// fixed order of sections, sorted by key within one; fields in a fixed order per kind.
class RulebaseDiff final
{
public:
    enum class Change { Added, Removed, Changed };

    struct Field
    {
        QString name;
        QString oldValue;
        QString newValue;
        // For a changed text of several lines, its unified diff; else empty.
        QStringList lines;
    };

    struct Item
    {
        QString section; // "rule", "category", "control-tag"...
        QString key;     // as shown: the id, level, tag name or library id
        QString title;   // words for a reader; may be empty
        Change change = Change::Changed;
        // Changed: the fields that differ. Added: every field of the new item with a value;
        // removed: those of the old one.
        std::vector<Field> fields;
    };

    static std::vector<Item> compare(const Rulebase &older, const Rulebase &newer);
    static QString changeText(Change change);

private:
    // One item of one side, flattened to named text values.
    struct Record
    {
        QString matchKey; // what pairs the sides: the number, or the name in lower case
        QString key;
        QString title;
        std::vector<std::pair<QString, QString>> fields;
    };
    using Records = std::vector<Record>;

    static Records properties(const Rulebase &rulebase);
    static Records defaultViolations(const Rulebase &rulebase);
    static Records categories(const Rulebase &rulebase);
    static Records severities(const Rulebase &rulebase);
    static Records tags(const Rulebase &rulebase, int tagType);
    static Records components(const Rulebase &rulebase);
    static Records references(const Rulebase &rulebase);
    static Records rules(const Rulebase &rulebase);
    static void
    compareSection(const QString &section, Records older, Records newer, std::vector<Item> &items);
};
