#include "rulebase/RuleLists.h"

#include "platform/ErrorFrame.h"
#include "platform/TextUtils.h"
#include "rulebase/CodingConvention.h"
#include "rulebase/IRule.h"
#include "rulebase/NamingConvention.h"
#include "rulebase/ScriptFile.h"
#include "rulebase/UnauthorisedKeyword.h"
#include "rulebase/ViolationDefinition.h"

#include <QStringList>

#include <limits>

namespace {

constexpr const char *module = "RuleLists";

// The list of one id; with `create` a missing one is made and kept.
template<typename Lists>
typename Lists::mapped_type listOf(Lists &lists, qint32 id, bool create)
{
    if (const auto found = lists.constFind(id); found != lists.cend())
        return *found;
    if (!create)
        return nullptr;
    auto list = std::make_shared<typename Lists::mapped_type::element_type>();
    lists.insert(id, list);
    return list;
}

// Removes the first entry with the id; gives the rule last looked at.
template<typename Rule>
std::shared_ptr<Rule> removeFromList(ObjectArrayList<Rule> *list, qint32 ruleID)
{
    if (!list)
        throw QuorinError::objectNotSet(QStringLiteral("RuleLists"));
    std::shared_ptr<Rule> rule;
    for (qint32 i = 1; i <= list->Count(); ++i) {
        rule = list->Item(i);
        if (!rule)
            throw QuorinError::objectNotSet(QStringLiteral("RuleLists"));
        if (rule->RuleID() == ruleID) {
            list->Remove(i);
            break;
        }
    }
    return rule;
}

// An empty list names no events; "12||15" still has an empty part, which reads as event 0.
QStringList eventParts(const QString &eventList)
{
    return eventList.isEmpty() ? QStringList() : eventList.split(QLatin1Char('|'));
}

} // namespace

RuleLists::RuleLists()
    : m_allConventions(std::make_shared<ObjectKeyedArrayList<IRule>>())
    , m_codingConventions(std::make_shared<ObjectKeyedArrayList<CodingConvention>>())
    , m_unauthorisedKeywords(std::make_shared<ObjectKeyedArrayList<UnauthorisedKeyword>>())
    , m_namingConventions(std::make_shared<ObjectKeyedArrayList<NamingConvention>>())
    , m_parserEventCCLists(std::make_shared<ListsByID<CodingConvention>>())
    , m_parserEventUKLists(std::make_shared<ListsByID<UnauthorisedKeyword>>())
    , m_pendingLists(std::make_shared<ListsByID<CodingConvention>>())
    , m_objectNCLists(std::make_shared<ListsByID<NamingConvention>>())
{
}

bool RuleLists::Dirty() const
{
    if (m_dirty)
        return true;
    for (qint32 i = 1; i <= m_allConventions->Count(); ++i) {
        if (m_allConventions->Item(i)->Dirty())
            return true;
    }
    return false;
}

void RuleLists::setDirty(bool dirty)
{
    for (qint32 i = 1; i <= m_allConventions->Count(); ++i)
        m_allConventions->Item(i)->setDirty(dirty);
    m_dirty = dirty;
}

void RuleLists::setLastID(qint32 lastID)
{
    m_lastID = lastID;
    m_dirty = true;
}

std::shared_ptr<ObjectArrayList<CodingConvention>> RuleLists::ParserEventCCList(qint32 eventID,
                                                                                bool create)
{
    return listOf(*m_parserEventCCLists, eventID, create);
}

std::shared_ptr<ObjectArrayList<UnauthorisedKeyword>> RuleLists::ParserEventUKList(qint32 eventID,
                                                                                   bool create)
{
    return listOf(*m_parserEventUKLists, eventID, create);
}

std::shared_ptr<ObjectArrayList<CodingConvention>>
RuleLists::PendingViolations(qint32 eventID) const
{
    return listOf(*m_pendingLists, eventID, false);
}

std::shared_ptr<ObjectArrayList<NamingConvention>> RuleLists::ObjectNCList(qint32 objectType,
                                                                           bool create)
{
    return listOf(*m_objectNCLists, objectType, create);
}

void RuleLists::AddConvention(const std::shared_ptr<IRule> &rule, bool newRule)
{
    // Refused before the frame, so that the caller's frame reports it and adds the rule nowhere.
    if (newRule && m_lastID == std::numeric_limits<qint32>::max())
        throw QuorinError(ErrorNumber::Overflow,
                          QStringLiteral("RuleLists::AddConvention"),
                          QStringLiteral("No new rule can be added: the rulebase has used every "
                                         "rule id up to %1.")
                              .arg(m_lastID));
    guardedVoid("AddConvention", module, [&] {
        if (!rule)
            throw QuorinError::objectNotSet(QStringLiteral("RuleLists::AddConvention"));
        if (newRule) {
            ++m_lastID;
            rule->setRuleID(m_lastID);
        }
        const QString key = rule->RuleKey();
        m_allConventions->Add(key, rule, false, true);
        if (auto coding = std::dynamic_pointer_cast<CodingConvention>(rule)) {
            m_codingConventions->Add(key, coding, false, true);
            for (qint32 i = 0; i < coding->EventCount(); ++i)
                ParserEventCCList(coding->ParserEventID(i), true)->Add(coding);
            if (coding->PendingViolation())
                AddRuleToPendingList(coding, coding->EndEventID());
        } else if (auto keyword = std::dynamic_pointer_cast<UnauthorisedKeyword>(rule)) {
            m_unauthorisedKeywords->Add(key, keyword, false, true);
            for (qint32 i = 0; i < keyword->EventCount(); ++i)
                ParserEventUKList(keyword->ParserEventID(i), true)->Add(keyword);
        } else if (auto naming = std::dynamic_pointer_cast<NamingConvention>(rule)) {
            m_namingConventions->Add(key, naming, false, true);
            ObjectNCList(naming->ObjectType(), true)->Add(naming);
        }
        m_dirty = true;
    });
}

void RuleLists::RemoveRule(const QString &key)
{
    guardedVoid("RemoveRule", module, [&] {
        const std::shared_ptr<IRule> rule = m_allConventions->Item(key);
        const qint32 ruleID = Text::valLong(key);
        if (auto coding = std::dynamic_pointer_cast<CodingConvention>(rule)) {
            m_codingConventions->Remove(key);
            for (qint32 i = 0; i < coding->EventCount(); ++i)
                RemoveRuleFromPECCList(ruleID, coding->ParserEventID(i));
        } else if (auto keyword = std::dynamic_pointer_cast<UnauthorisedKeyword>(rule)) {
            m_unauthorisedKeywords->Remove(key);
            for (qint32 i = 0; i < keyword->EventCount(); ++i)
                RemoveRuleFromPEUKList(ruleID, keyword->ParserEventID(i));
        } else if (auto naming = std::dynamic_pointer_cast<NamingConvention>(rule)) {
            m_namingConventions->Remove(key);
            RemoveRuleFromObjectNCList(naming->RuleID(), naming->ObjectType());
        }
        m_allConventions->Remove(key);
        m_dirty = true;
    });
}

void RuleLists::MoveCodingConvention(qint32 ruleID, qint32 fromEvent, qint32 toEvent)
{
    guardedVoid("MoveCodingConvention", module, [&] {
        const auto rule = RemoveRuleFromPECCList(ruleID, fromEvent);
        const auto to = ParserEventCCList(toEvent, true);
        // A null rule (no list for fromEvent, or an empty one) is not appended.
        if (rule && !to->ContainsValue(rule))
            to->Add(rule);
        m_dirty = true;
    });
}

void RuleLists::MoveNamingConvention(qint32 ruleID, qint32 fromObject, qint32 toObject)
{
    guardedVoid("MoveNamingConvention", module, [&] {
        const auto rule = RemoveRuleFromObjectNCList(ruleID, fromObject);
        const auto to = ObjectNCList(toObject, true);
        if (rule && !to->ContainsValue(rule))
            to->Add(rule);
        m_dirty = true;
    });
}

std::shared_ptr<CodingConvention> RuleLists::RemoveRuleFromPECCList(qint32 ruleID, qint32 eventID)
{
    return guarded("RemoveRuleFromPECCList", module, std::shared_ptr<CodingConvention>(), [&] {
        return removeFromList(ParserEventCCList(eventID, false).get(), ruleID);
    });
}

std::shared_ptr<UnauthorisedKeyword> RuleLists::RemoveRuleFromPEUKList(qint32 ruleID,
                                                                       qint32 eventID)
{
    return guarded("RemoveRuleFromPEUKList", module, std::shared_ptr<UnauthorisedKeyword>(), [&] {
        return removeFromList(ParserEventUKList(eventID, false).get(), ruleID);
    });
}

std::shared_ptr<NamingConvention> RuleLists::RemoveRuleFromObjectNCList(qint32 ruleID,
                                                                        qint32 objectType)
{
    return guarded("RemoveRuleFromObjectNCList", module, std::shared_ptr<NamingConvention>(), [&] {
        return removeFromList(ObjectNCList(objectType, false).get(), ruleID);
    });
}

void RuleLists::AddRuleToPendingList(const std::shared_ptr<CodingConvention> &rule,
                                     qint32 endEventID)
{
    guardedVoid("AddRuleToPendingList", module, [&] {
        listOf(*m_pendingLists, endEventID, true)->Add(rule);
    });
}

void RuleLists::RemoveRuleFromPendingList(const std::shared_ptr<CodingConvention> &rule,
                                          qint32 endEventID)
{
    guardedVoid("RemoveRuleFromPendingList", module, [&] {
        if (const auto list = PendingViolations(endEventID))
            list->RemoveByValue(rule);
    });
}

void RuleLists::RemoveRuleFromAllPECCLists(qint32 ruleID, const QString &eventList)
{
    guardedVoid("RemoveRuleFromAllPECCLists", module, [&] {
        const QString key = ruleKey(ruleID);
        m_codingConventions->Remove(key);
        for (const QString &part : eventParts(eventList))
            RemoveRuleFromPECCList(ruleID, Text::valLong(part));
        m_allConventions->Remove(key);
    });
}

void RuleLists::RemoveRuleFromAllPEUKLists(qint32 ruleID, const QString &eventList)
{
    guardedVoid("RemoveRuleFromAllPEUKLists", module, [&] {
        const QString key = ruleKey(ruleID);
        m_unauthorisedKeywords->Remove(key);
        for (const QString &part : eventParts(eventList))
            RemoveRuleFromPEUKList(ruleID, Text::valLong(part));
        m_allConventions->Remove(key);
    });
}

qint16 RuleLists::GetNCObjectRuleCount(qint32 objectType) const
{
    return guarded("GetNCObjectRuleCount", module, qint16(0), [&] {
        const qint32 count
            = objectType == -1 ? m_namingConventions->Count() : ObjectNCRuleCount(objectType);
        if (count > std::numeric_limits<qint16>::max())
            throw QuorinError::overflow(QStringLiteral("RuleLists::GetNCObjectRuleCount"));
        return qint16(count);
    });
}

qint32 RuleLists::ObjectNCRuleCount(qint32 objectType) const
{
    const auto list = listOf(*m_objectNCLists, objectType, false);
    return list ? list->Count() : 0;
}

std::shared_ptr<ObjectArrayList<IRule>> RuleLists::ConventionsListByCatID(qint32 categoryID) const
{
    return guarded(
        "ConventionsListByCatID", module, std::shared_ptr<ObjectArrayList<IRule>>(), [&] {
            auto list = std::make_shared<ObjectArrayList<IRule>>();
            for (qint32 i = 1; i <= m_allConventions->Count(); ++i) {
                const auto rule = m_allConventions->Item(i);
                if (rule->ViolationDefinition()->CategoryID() == categoryID)
                    list->Add(rule);
            }
            SortRuleList(*list);
            return list;
        });
}

void RuleLists::SortRuleList(ObjectArrayList<IRule> &list)
{
    // Ascending by title ignoring case; equal titles come out in reverse order of arrival.
    list.SortBy([](const std::shared_ptr<IRule> &a, const std::shared_ptr<IRule> &b) {
        return a->Title().compare(b->Title(), Qt::CaseInsensitive) < 0;
    });
}

qint32 RuleLists::AddScriptsTo(ScriptFile &file) const
{
    qint32 conditions = 0;
    const auto add = [&](const QString &condition, qint32 ruleID) {
        file.AddScript(ruleID, condition);
        conditions += condition.isEmpty() ? 0 : 1;
    };
    for (qint32 i = 1; i <= m_codingConventions->Count(); ++i) {
        if (const auto rule = m_codingConventions->Item(i))
            add(rule->Condition(), rule->RuleID());
    }
    // Unauthorised keywords' conditions never reach the file.
    for (qint32 i = 1; i <= m_namingConventions->Count(); ++i) {
        if (const auto rule = m_namingConventions->Item(i))
            add(rule->Condition(), rule->RuleID());
    }
    return conditions;
}

QString RuleLists::CreateScriptFile() const
{
    ScriptFile file;
    AddScriptsTo(file);
    file.CreateScriptFile();
    return file.FullFilename();
}
