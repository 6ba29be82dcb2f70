#include "tools/ToolRulebaseLoader.h"

#include "rulebase/Rulebase.h"
#include "rulebase/RulebaseManager.h"
#include "tools/ConsoleUserInterface.h"
#include "xml/TarnXMLDoc.h"

#include <QFile>
#include <QFileInfo>

bool LoadedRulebase::whole() const
{
    return rulebase && !rulebase->LoadedInPart();
}

bool ToolRulebaseLoader::isReadable(const QString &filename, QString &reason)
{
    const QFileInfo info(filename);
    if (!info.exists()) {
        reason = QStringLiteral("No such file");
        return false;
    }
    if (info.isDir()) {
        reason = QStringLiteral("Is a folder, not a rulebase file");
        return false;
    }
    QFile file(filename);
    if (!file.open(QIODevice::ReadOnly)) {
        reason = file.errorString();
        return false;
    }
    return true;
}

LoadedRulebase ToolRulebaseLoader::load(const QString &filename)
{
    // The tool stands in for the administrator's program, so hidden categories load too.
    RulebaseManager::setAdministratorOverride(true);
    LoadedRulebase result;
    ConsoleUserInterface recorder(nullptr);
    RulebaseManager manager;
    result.rulebase = manager.LoadRulebase(filename);
    result.messages = recorder.takeMessages();
    if (!result.rulebase) {
        TarnXMLDoc doc;
        if (!doc.LoadFromFile(filename))
            result.parseError = doc.ParseErrorReason();
    }
    return result;
}
