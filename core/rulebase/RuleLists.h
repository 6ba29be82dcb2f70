#pragma once

#include "collections/ObjectArrayList.h"
#include "collections/ObjectKeyedArrayList.h"

#include <QHash>
#include <QString>

#include <memory>

class IRule;
class CodingConvention;
class UnauthorisedKeyword;
class NamingConvention;
class ScriptFile;

// Owns every rule of a rulebase and gives them by type, by parser event and by object; all the
// lists hold the same objects. Hands out rule ids: the first rule of a new rulebase is 5000,
// and an id is never used twice, since LastID is saved with the file.
class RuleLists final
{
public:
    RuleLists();

    // The own flag or any rule's; the lists' own flags are not asked.
    bool Dirty() const;
    // Sets every rule's flag, then the own one.
    void setDirty(bool dirty);
    qint32 LastID() const { return m_lastID; }
    void setLastID(qint32 lastID);

    // Keyed by rule key ("5000Key").
    std::shared_ptr<ObjectKeyedArrayList<IRule>> AllConventions() const { return m_allConventions; }
    std::shared_ptr<ObjectKeyedArrayList<CodingConvention>> CodingConventions() const
    {
        return m_codingConventions;
    }
    std::shared_ptr<ObjectKeyedArrayList<UnauthorisedKeyword>> UnauthorisedKeywords() const
    {
        return m_unauthorisedKeywords;
    }
    std::shared_ptr<ObjectKeyedArrayList<NamingConvention>> NamingConventions() const
    {
        return m_namingConventions;
    }

    // The rules of one parser event or object type. With `create` a missing list is made and
    // kept; without, a missing list gives null. No frame: failures reach the caller.
    std::shared_ptr<ObjectArrayList<CodingConvention>> ParserEventCCList(qint32 eventID,
                                                                         bool create);
    std::shared_ptr<ObjectArrayList<UnauthorisedKeyword>> ParserEventUKList(qint32 eventID,
                                                                            bool create);
    std::shared_ptr<ObjectArrayList<CodingConvention>> PendingViolations(qint32 eventID) const;
    std::shared_ptr<ObjectArrayList<NamingConvention>> ObjectNCList(qint32 objectType, bool create);

    // Numbers the rule first when `newRule`; loading passes False so stored ids stand. Once
    // every id is used, a new rule raises the overflow error to the caller and is not added.
    void AddConvention(const std::shared_ptr<IRule> &rule, bool newRule);
    // Leaves a coding convention in its pending list, which only PendingViolations reads.
    void RemoveRule(const QString &key);
    // The rule's own event array is the caller's to update.
    void MoveCodingConvention(qint32 ruleID, qint32 fromEvent, qint32 toEvent);
    // Each gives the rule last looked at: the match, else the list's last rule, else null.
    std::shared_ptr<CodingConvention> RemoveRuleFromPECCList(qint32 ruleID, qint32 eventID);
    std::shared_ptr<UnauthorisedKeyword> RemoveRuleFromPEUKList(qint32 ruleID, qint32 eventID);
    std::shared_ptr<NamingConvention> RemoveRuleFromObjectNCList(qint32 ruleID, qint32 objectType);
    // Appends without a check for duplicates.
    void AddRuleToPendingList(const std::shared_ptr<CodingConvention> &rule, qint32 endEventID);
    void RemoveRuleFromPendingList(const std::shared_ptr<CodingConvention> &rule,
                                   qint32 endEventID);
    // `eventList` as ParserEventList gives it ("12|15"). They leave the own Dirty alone.
    void RemoveRuleFromAllPECCLists(qint32 ruleID, const QString &eventList);
    void RemoveRuleFromAllPEUKLists(qint32 ruleID, const QString &eventList);
    // -1 counts all naming conventions; an object without a list has 0.
    qint16 GetNCObjectRuleCount(qint32 objectType) const;
    void MoveNamingConvention(qint32 ruleID, qint32 fromObject, qint32 toObject);
    // A new list of the rules of one category, sorted by title ignoring case.
    std::shared_ptr<ObjectArrayList<IRule>> ConventionsListByCatID(qint32 categoryID) const;
    // Writes the conditions of the coding and naming conventions, in list order, to the
    // condition script file and gives its full name, whether or not the write succeeded.
    QString CreateScriptFile() const;
    // Adds the conditions of the coding and naming conventions, in list order, to `file`;
    // gives how many of them are not empty.
    qint32 AddScriptsTo(ScriptFile &file) const;

private:
    qint32 ObjectNCRuleCount(qint32 objectType) const;
    static void SortRuleList(ObjectArrayList<IRule> &list);

    std::shared_ptr<ObjectKeyedArrayList<IRule>> m_allConventions;
    std::shared_ptr<ObjectKeyedArrayList<CodingConvention>> m_codingConventions;
    std::shared_ptr<ObjectKeyedArrayList<UnauthorisedKeyword>> m_unauthorisedKeywords;
    std::shared_ptr<ObjectKeyedArrayList<NamingConvention>> m_namingConventions;
    // The lists by event or object id.
    template<typename Rule>
    using ListsByID = QHash<qint32, std::shared_ptr<ObjectArrayList<Rule>>>;
    std::shared_ptr<ListsByID<CodingConvention>> m_parserEventCCLists;
    std::shared_ptr<ListsByID<UnauthorisedKeyword>> m_parserEventUKLists;
    std::shared_ptr<ListsByID<CodingConvention>> m_pendingLists;
    std::shared_ptr<ListsByID<NamingConvention>> m_objectNCLists;
    bool m_dirty = false;
    qint32 m_lastID = 4999;
};
