#include "platform/GlobalObjects.h"

#include "platform/ErrorFrame.h"
#include "platform/LogFile.h"
#include "platform/QuorinAdminData.h"
#include "platform/QuorinData.h"
#include "platform/TextUtils.h"

#include <QCoreApplication>
#include <QFileInfo>

std::shared_ptr<LogFile> gobjLogFile;
std::shared_ptr<QuorinData> gobjQuorinData;
std::shared_ptr<QuorinAdminData> gobjAdminData;
int glGlobalObjectsUsers = 0;

QString programComponentVersion()
{
    return QString::number(QUORIN_VERSION_MAJOR) + QLatin1Char('.')
           + Text::zeroPadded(QUORIN_VERSION_MINOR, 2) + QLatin1Char('.')
           + Text::zeroPadded(QUORIN_VERSION_PATCH, 4);
}

int CreateGlobalObjects()
{
    try {
        if (glGlobalObjectsUsers == 0) {
            gobjQuorinData = std::make_shared<QuorinData>();
            gobjAdminData = std::make_shared<QuorinAdminData>();
            if (gobjAdminData->LastPath().isEmpty())
                gobjAdminData->setLastPath(gobjQuorinData->LocalDataPath());
            auto log = std::make_shared<LogFile>();
            log->setLogFileName(gobjQuorinData->ErrorLogFile());
            log->setComponent(
                QFileInfo(QCoreApplication::applicationFilePath()).completeBaseName());
            log->setComponentVersion(programComponentVersion());
            gobjLogFile = log;
        }
        ++glGlobalObjectsUsers;
        return 0;
    } catch (const std::exception &e) {
        if (gobjLogFile)
            reportError(QuorinError::fromStd(e), "CreateGlobalObjects", "GlobalObjects");
        return 1;
    }
}

void DestroyGlobalObjects()
{
    --glGlobalObjectsUsers;
    if (glGlobalObjectsUsers == 0) {
        gobjQuorinData.reset();
        gobjAdminData.reset(); // saves the user's settings
        gobjLogFile.reset();
    }
}
