#pragma once

#include <QByteArray>
#include <QString>

#include <exception>

// Raised errors keep the numbering of the original runtime: vbObjectError plus an offset for
// the program's own errors, the runtime's small numbers for its failures.
constexpr qint32 vbObjectError = qint32(0x80040000u);

namespace ErrorNumber {
constexpr qint32 Overflow = 6;
constexpr qint32 SubscriptOutOfRange = 9;
constexpr qint32 TypeMismatch = 13;
constexpr qint32 ObjectNotSet = 91;
constexpr qint32 NoSuchItem = vbObjectError + 514;
constexpr qint32 DuplicateKey = vbObjectError + 515;
constexpr qint32 NoFilename = vbObjectError + 516;
constexpr qint32 RegistryTypeMismatch = vbObjectError + 618;
constexpr qint32 InvalidRegistryHandle = vbObjectError + 619;
} // namespace ErrorNumber

class QuorinError : public std::exception
{
public:
    QuorinError(qint32 number, QString source, QString description);

    qint32 number() const { return m_number; }
    const QString &source() const { return m_source; }
    const QString &description() const { return m_description; }
    const char *what() const noexcept override { return m_what.constData(); }

    // The runtime's own failures, worded as the runtime words them.
    static QuorinError subscriptOutOfRange(const QString &source);
    static QuorinError objectNotSet(const QString &source);
    static QuorinError typeMismatch(const QString &source);
    static QuorinError overflow(const QString &source);
    // Any other C++ exception that reaches an error frame.
    static QuorinError fromStd(const std::exception &e);

private:
    qint32 m_number;
    QString m_source;
    QString m_description;
    QByteArray m_what;
};
