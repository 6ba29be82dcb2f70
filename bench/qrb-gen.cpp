#include "bench/RulebaseGenerator.h"

#include "rulebase/Rulebase.h"
#include "rulebase/RulebaseManager.h"

#include <QCoreApplication>
#include <QTextStream>

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    const QStringList args = app.arguments();
    if (args.size() != 3) {
        QTextStream(stderr) << "usage: qrb-gen RULES FILE" << Qt::endl;
        return 2;
    }
    const auto rulebase = generateRulebase(args.at(1).toInt());
    return RulebaseManager().Save(*rulebase, args.at(2)) ? 0 : 1;
}
