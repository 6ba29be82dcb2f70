#pragma once

#include <QString>

// A tag a naming convention can take into a prefix or suffix, looked up by what the thing
// named is: a ProgID, a data type or a scope.
class TagItem final
{
public:
    // The key in its tag set.
    QString TagName() const { return m_tagName; }
    void setTagName(const QString &name);
    QString TagValue() const { return m_tagValue; }
    void setTagValue(const QString &value);
    // A built-in entry: it can't be deleted or renamed. Setting it leaves Dirty alone.
    bool Locked() const { return m_locked; }
    void setLocked(bool locked) { m_locked = locked; }
    bool Dirty() const { return m_dirty; }
    void setDirty(bool dirty) { m_dirty = dirty; }
    QString TagDescription() const { return m_tagDescription; }
    void setTagDescription(const QString &description);
    QString TagExample() const { return m_tagExample; }
    void setTagExample(const QString &example);

private:
    QString m_tagName;
    QString m_tagValue;
    bool m_locked = false;
    bool m_dirty = false;
    QString m_tagDescription;
    QString m_tagExample;
};
