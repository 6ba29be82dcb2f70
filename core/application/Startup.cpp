#include "application/Startup.h"

#include "application/Application.h"
#include "platform/ErrorFrame.h"
#include "platform/FileUtils.h"
#include "platform/GlobalObjects.h"
#include "platform/MRUUtils.h"
#include "platform/QuorinAdminData.h"
#include "platform/QuorinData.h"
#include "platform/UserInterface.h"

bool RunStartup(Application &application, const QString &commandLine)
{
    return guarded("Main", "Main", false, [&]() -> bool {
        application.Show();

        bool opened = false;
        if (!commandLine.isEmpty()) {
            // Taken whole, so an unquoted name with spaces is still one name.
            QString name = commandLine;
            if (name.startsWith(QLatin1Char('"')))
                name = FileUtils::RemoveQuotes(name);
            opened = application.OpenRulebase(Application::OpenMode::CommandLine, name);
        } else {
            MRUUtils mru;
            mru.setAppName(QStringLiteral("Settings\\Rulebase"));
            if (mru.Count() > 0) {
                opened = application.OpenRulebase(Application::OpenMode::RecentList, mru.Item(1));
            } else if (gobjQuorinData) {
                const QString sample
                    = gobjQuorinData->LocalDataPath() + QStringLiteral("Sample.qrb");
                if (FileUtils::FileExists(sample)) {
                    mru.Add(sample);
                    opened = application.OpenRulebase(Application::OpenMode::RecentList, sample);
                }
            }
        }

        if (gobjAdminData && gobjAdminData->FirstUse()) {
            UserInterface::current().showHelp(
                HelpCommand::Topic, QStringLiteral("::/Introduction.html"), 0);
            gobjAdminData->setFirstUse(false);
        }
        return opened;
    });
}
