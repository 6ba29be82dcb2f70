#include "support/TestMain.h"

#include <QCoreApplication>

// Every test executable but the GUI's, which needs a QApplication of its own.
int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    return runTests(argc, argv);
}
