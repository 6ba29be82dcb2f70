#pragma once

#include <QHash>
#include <QString>

class Rulebase;
struct DeclaredObject;

// The tags a naming convention takes into a name, found for one object: its control tag by
// ProgID, its data type tag by data type, its scope tag by scope, and the array tag.
class TagLookup final
{
public:
    struct Tag
    {
        QString value;
        // What the tag was chosen for, to explain a name that lacks it: "a String".
        QString what;
        // False when no entry of the tag set names the thing; the value is then empty, or
        // for a control the "(Unknown ProgID)" tag.
        bool found = true;
    };

    explicit TagLookup(const Rulebase &rulebase);

    // Learns the names a data type can refer to from what the projects declare: classes,
    // forms and the other files, enumerations and user-defined types.
    void learn(const DeclaredObject &object);

    Tag controlTag(const DeclaredObject &object) const;
    Tag dataTypeTag(const DeclaredObject &object) const;
    Tag scopeTag(const DeclaredObject &object) const;
    Tag arrayTag(const DeclaredObject &object) const;

private:
    // The control tag of a ProgID or bare class name ("TextBox" is "VB.TextBox").
    const QString *controlTagOf(const QString &progID) const;

    QHash<QString, QString> m_controlTags; // by lower-case TagName
    QHash<QString, QString> m_dataTypeTags;
    QHash<QString, QString> m_scopeTags;
    QHash<QString, QString> m_projectTypes; // lower-case name -> "(Classes)" and the like
    QString m_arrayTag;
    bool m_controlTagsAsDataTypeTags = false;
};
