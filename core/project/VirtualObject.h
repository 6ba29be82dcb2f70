#pragma once

#include <QString>

#include <memory>

class KeyedArrayList;
class QVariant;
class SourceLineStatistics;
class ViolationStatistics;

// A bag of properties, workfields and statistics for one reviewed thing (a project, a source
// file). Each of the four parts is made when first asked for, and the same one is given after.
class VirtualObject final
{
public:
    VirtualObject();
    ~VirtualObject();

    std::shared_ptr<KeyedArrayList> Properties();
    std::shared_ptr<KeyedArrayList> Workfields();
    std::shared_ptr<SourceLineStatistics> LineStats();
    std::shared_ptr<ViolationStatistics> ViolationStats();

    // Say whether ViolationStats and LineStats apply.
    bool HasVLIST() const { return m_hasVLIST; }
    void setHasVLIST(bool value) { m_hasVLIST = value; }
    bool HasLSTATS() const { return m_hasLSTATS; }
    void setHasLSTATS(bool value) { m_hasLSTATS = value; }
    QString ParentViolations() const { return m_parentViolations; }
    void setParentViolations(const QString &value) { m_parentViolations = value; }
    qint32 ObjectID() const { return m_objectID; }
    void setObjectID(qint32 value) { m_objectID = value; }
    qint32 ObjectType() const { return m_objectType; }
    void setObjectType(qint32 value) { m_objectType = value; }

    // Adds to Properties unless the key (ignoring case) is there already: the first value read
    // for a key stands. Gives whether it was added.
    bool AddProperty(const QString &key, const QVariant &value);
    // On Properties: with `value` 0 the entry's number goes up by one (an absent entry counts
    // from 0); any other `value` replaces the count.
    void IncrementMemberCount(const QString &name, qint32 value);

private:
    std::shared_ptr<KeyedArrayList> m_properties;
    std::shared_ptr<KeyedArrayList> m_workfields;
    std::shared_ptr<SourceLineStatistics> m_lineStats;
    std::shared_ptr<ViolationStatistics> m_violationStats;
    bool m_hasVLIST = false;
    bool m_hasLSTATS = false;
    QString m_parentViolations;
    qint32 m_objectID = 0;
    qint32 m_objectType = 0;
};
