#pragma once

#include <QString>

#include <memory>

class StringKeyedArrayList;

// Gathers the conditions of a rulebase into one module, one procedure per rule, with a
// dispatcher RunScript that calls a rule's procedure by its id, and writes it to
// "QuorinScripts.qrs" in the temporary folder.
class ScriptFile final
{
public:
    ScriptFile();
    // The file goes into `folder` instead; for tests and tools.
    explicit ScriptFile(const QString &folder);
    ~ScriptFile();

    QString FullFilename() const { return m_fullFilename; }
    static QString ScriptPrototype();

    // Ignored for an empty script and for a rule id already held: the first script stays.
    void AddScript(qint32 ruleID, const QString &script);
    // The whole text of the file, as CreateScriptFile writes it.
    QString ScriptText() const;
    // Replaces the file atomically; a failure is reported through the error frame and gives
    // false, leaving any older file as it was.
    bool CreateScriptFile();

private:
    QString CreateEntryMethod() const;

    QString m_fullFilename;
    std::unique_ptr<StringKeyedArrayList> m_scripts; // key the rule id in decimal
};
