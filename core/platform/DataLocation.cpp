#include "platform/DataLocation.h"

#include "platform/QuorinData.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#include <utility>

namespace {

// Every installed copy keeps its data in a folder of this name below a data folder.
const QString subfolder = QStringLiteral(QUORIN_DATA_NAME);
// The file that marks a folder as holding the bundled data.
const QString marker = QStringLiteral("Sample.qrb");

QString withSeparator(const QString &folder)
{
    return folder.endsWith(QLatin1Char('/')) ? folder : folder + QLatin1Char('/');
}

} // namespace

QString DataLocation::dataFolder()
{
    const QString program = QuorinData::programFolder();
    QStringList candidates{program};
    for (const QString &shared :
         QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation))
        candidates << withSeparator(shared) + subfolder;
    // An installation moved elsewhere as a whole (another prefix, or on Windows) has its data
    // at the same place relative to the program.
    candidates << QDir::cleanPath(program + QStringLiteral(QUORIN_DATA_FROM_PROGRAM));
    for (const QString &folder : std::as_const(candidates)) {
        if (QFileInfo::exists(withSeparator(folder) + marker))
            return withSeparator(folder);
    }
    return program;
}

QString DataLocation::writableFolder()
{
    const QString data = dataFolder();
    if (data == QuorinData::programFolder())
        return data;
    const QString user = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    // Nothing else creates it, and a log record can't be written into a missing folder.
    QDir().mkpath(user);
    return withSeparator(user);
}
