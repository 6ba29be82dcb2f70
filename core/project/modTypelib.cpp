#include "project/modTypelib.h"

#include "platform/GlobalObjects.h"
#include "platform/LogFile.h"
#include "platform/QuorinError.h"
#include "project/VirtualComponent.h"
#include "project/VirtualReference.h"
#include "typelib/TypeLibReader.h"

#include <QDebug>

namespace modTypelib {

namespace {

constexpr qint32 NoTypeLibrary = vbObjectError + 0x301;

// The file's name behind its last folder separator, either kind.
QString nameWithoutPath(const QString &filename)
{
    const qsizetype slash = std::max(filename.lastIndexOf(u'\\'), filename.lastIndexOf(u'/'));
    return filename.mid(slash + 1);
}

// Logged without the error box: the caller decides what the user is told.
void logReadFailure(const QString &filename, const QString &reason, const char *function)
{
    const QuorinError error(NoTypeLibrary,
                            QStringLiteral("modTypelib::") + QLatin1String(function),
                            QStringLiteral("No type library could be read from '") + filename
                                + QStringLiteral("': ") + reason);
    if (!gobjLogFile) {
        qWarning().noquote() << error.description();
        return;
    }
    const bool quiet = gobjLogFile->Quiet();
    gobjLogFile->setQuiet(true);
    gobjLogFile->LogBasicError(error, QLatin1String(function), QStringLiteral("modTypelib"));
    gobjLogFile->setQuiet(quiet);
}

std::optional<TypeLibInfo> readLibrary(const QString &filename, const char *function)
{
    QString reason;
    std::optional<TypeLibInfo> library;
    try {
        library = TypeLibReader::readFile(filename, 0, &reason);
    } catch (const std::exception &e) {
        reason = QString::fromLocal8Bit(e.what());
    }
    if (!library)
        logReadFailure(filename, reason, function);
    return library;
}

} // namespace

std::shared_ptr<VirtualComponent> LoadComponentFromFile(const QString &filename, bool &ok)
{
    auto component = std::make_shared<VirtualComponent>();
    component->setDesignTime(false);
    component->setFilename(nameWithoutPath(filename));
    const std::optional<TypeLibInfo> library = readLibrary(filename, "LoadComponentFromFile");
    ok = library.has_value();
    if (ok) {
        component->setGUID(library->guid);
        component->setVersion(library->version());
    }
    return component;
}

std::shared_ptr<VirtualReference> LoadReferenceFromFile(const QString &filename, bool &ok)
{
    auto reference = std::make_shared<VirtualReference>();
    reference->setDesignTime(false);
    reference->setFilename(nameWithoutPath(filename));
    const std::optional<TypeLibInfo> library = readLibrary(filename, "LoadReferenceFromFile");
    ok = library.has_value();
    if (ok) {
        reference->setGUID(library->guid);
        reference->setVersion(library->version());
        reference->setDescription(library->helpString);
    }
    return reference;
}

} // namespace modTypelib
