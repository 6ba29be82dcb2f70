#pragma once

#include <QString>

#include <memory>

class LogFile;
class QuorinData;
class QuorinAdminData;

// The process-wide objects, reachable from every module. CreateGlobalObjects makes them on its
// first call (0 success, 1 failure); DestroyGlobalObjects releases them at its last.
extern std::shared_ptr<LogFile> gobjLogFile;
extern std::shared_ptr<QuorinData> gobjQuorinData;
extern std::shared_ptr<QuorinAdminData> gobjAdminData;
extern int glGlobalObjectsUsers;

// Major, minor as "00", revision as "0000": 6.2.1 gives "6.02.0001".
QString programComponentVersion();

int CreateGlobalObjects();
void DestroyGlobalObjects();
