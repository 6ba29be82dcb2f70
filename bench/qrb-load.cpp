// Loads one rulebase into memory, as the program does when it opens a file, and exits; with
// --save OUT it writes it again. Timed beside `xmllint --noout FILE`, the floor of a DOM load.
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
    const auto rulebase = RulebaseManager().LoadRulebase(args.at(1));
    if (!rulebase)
        return 1;
    if (args.size() == 4 && !RulebaseManager().Save(*rulebase, args.at(3)))
        return 1;
    return 0;
}
