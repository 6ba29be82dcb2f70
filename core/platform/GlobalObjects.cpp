#include "platform/GlobalObjects.h"

#include "platform/LogFile.h"

std::shared_ptr<LogFile> gobjLogFile;
std::shared_ptr<QuorinData> gobjQuorinData;
std::shared_ptr<QuorinAdminData> gobjAdminData;
int glGlobalObjectsUsers = 0;
