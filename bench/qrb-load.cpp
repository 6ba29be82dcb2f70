// Loads one rulebase into memory as QuorinAdmin does when it opens a file, and exits; with
// --save OUT it writes it again as QuorinAdmin's Save As does. Timed beside
// `xmllint --noout FILE`, the floor of a DOM load.
//
// The same loader and saver run as in the program, as the administrator's program: hidden
// categories load and are saved again. What differs: no log, settings or main window are set
// up, so a fault goes to stderr instead of Error.log and a box, and no view is filled after
// the load (view_bench times that).
#include "rulebase/Rulebase.h"
#include "rulebase/RulebaseManager.h"

#include <QCoreApplication>
#include <QTextStream>

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    const QStringList args = app.arguments();
    if (args.size() != 2 && !(args.size() == 4 && args.at(2) == QLatin1String("--save"))) {
        QTextStream(stderr) << "usage: qrb-load FILE [--save OUT]" << Qt::endl;
        return 2;
    }
    // The program knows itself by its name; this one stands in for it.
    RulebaseManager::setAdministratorOverride(true);
    const auto rulebase = RulebaseManager().LoadRulebase(args.at(1));
    if (!rulebase)
        return 1;
    if (args.size() == 4 && !RulebaseManager().Save(*rulebase, args.at(3)))
        return 1;
    return 0;
}
