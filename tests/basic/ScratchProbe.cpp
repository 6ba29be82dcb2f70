#include "BasicTestSupport.h"
#include <QFile>
#include <iostream>
TEST(Scratch, Probe)
{
    QFile f(qEnvironmentVariable("PROBE", "/tmp/probe.txt"));
    if (!f.open(QIODevice::ReadOnly)) return;
    const QStringList parts = QString::fromUtf8(f.readAll()).split(QStringLiteral("\n----\n"));
    for (const QString &p : parts) {
        BasicSyntaxChecker c;
        c.check(p);
        std::cout << "=== " << p.left(200).toStdString() << "\n";
        for (const auto &d : c.errors()) std::cout << "  E " << d.located().toStdString() << "\n";
        for (const auto &d : c.warnings()) std::cout << "  W " << d.located().toStdString() << "\n";
    }
}
