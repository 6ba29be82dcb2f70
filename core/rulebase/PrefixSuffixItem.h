#pragma once

#include <QString>

// One of the four parts of a naming convention's prefix or suffix. PSType: 0 none,
// 1 literal or pattern, 2 control tag, 3 data type tag, 4 scope tag, 5 workfield literal,
// 6 array tag. No dirty flag: an edit here tells nobody, and the editor always sets another
// field of the rule with it.
class PrefixSuffixItem final
{
public:
    qint32 PSType() const { return m_psType; }
    void setPSType(qint32 psType) { m_psType = psType; }
    // The literal, pattern or workfield name; unused by the tag kinds.
    QString Value() const { return m_value; }
    void setValue(const QString &value) { m_value = value; }

private:
    qint32 m_psType = 0;
    QString m_value;
};
