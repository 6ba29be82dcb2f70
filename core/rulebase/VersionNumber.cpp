#include "rulebase/VersionNumber.h"

#include "platform/ErrorFrame.h"
#include "platform/TextUtils.h"

#include <QStringList>

#include <limits>

namespace {

constexpr const char *module = "VersionNumber";

qint16 partFromText(const QString &text, const char *member)
{
    if (text.isEmpty())
        return 0;
    return Text::toInteger(text, QStringLiteral("VersionNumber::") + QLatin1String(member));
}

// The parts are 16-bit: going past that range is an overflow error, not a wrap.
qint16 nextOf(qint16 part)
{
    if (part == std::numeric_limits<qint16>::max())
        throw QuorinError::overflow(QStringLiteral("VersionNumber::Increment"));
    return qint16(part + 1);
}

} // namespace

void VersionNumber::setMajorString(const QString &text)
{
    m_major = partFromText(text, "MajorString");
}

void VersionNumber::setMinorString(const QString &text)
{
    m_minor = partFromText(text, "MinorString");
}

QString VersionNumber::RevisionString() const
{
    return Text::zeroPadded(m_revision, 4);
}

void VersionNumber::setRevisionString(const QString &text)
{
    m_revision = partFromText(text, "RevisionString");
}

QString VersionNumber::Version() const
{
    return MajorString() + QLatin1Char('.') + MinorString() + QLatin1Char('.') + RevisionString();
}

void VersionNumber::setVersion(const QString &version)
{
    guardedVoid("Version", module, [&] {
        const QStringList parts = version.split(QLatin1Char('.'));
        auto part = [&](qsizetype index) {
            if (index >= parts.size())
                throw QuorinError::subscriptOutOfRange(QStringLiteral("VersionNumber::Version"));
            return parts[index];
        };
        setMajorString(part(0));
        setMinorString(part(1));
        setRevisionString(part(2));
    });
}

void VersionNumber::Increment()
{
    guardedVoid("Increment", module, [&] {
        m_revision = nextOf(m_revision);
        if (m_revision > LargestPart) {
            m_revision = 0;
            m_minor = nextOf(m_minor);
            if (m_minor > LargestPart) {
                m_minor = 0;
                m_major = nextOf(m_major);
            }
        }
    });
}
