#include "support/TestMain.h"

#include <QApplication>

int main(int argc, char **argv)
{
    // Headless unless told otherwise, also when ctest lists the tests.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    return runTests(argc, argv);
}
