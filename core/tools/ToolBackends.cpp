#include "tools/ToolBackends.h"

#include "tools/ToolContext.h"
#include "tools/ToolExit.h"

#include <QTextStream>

// Each function below is where its feature plugs in: replace the body by a call to the
// feature, keeping to the request, the exit codes and the rule that a failed run leaves no
// partial file behind.

namespace ToolBackends {

int writeDocument(const DocRequest &, ToolContext &context)
{
    return notAvailable(QStringLiteral("doc"), context);
}

int writeConditionScripts(const ScriptsRequest &, ToolContext &context)
{
    return notAvailable(QStringLiteral("scripts"), context);
}

int importAuthorisedItems(const ImportRequest &, ToolContext &context)
{
    return notAvailable(QStringLiteral("import"), context);
}

int notAvailable(const QString &command, ToolContext &context)
{
    context.err() << "qrbtool: '" << command << "' is not available in this build\n";
    context.err().flush();
    return ToolExit::Failure;
}

} // namespace ToolBackends
