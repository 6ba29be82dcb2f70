#include "application/Application.h"
#include "application/Startup.h"
#include "gui/GuiUserInterface.h"
#include "gui/factory/GuiFormFactory.h"
#include "gui/frmMain.h"
#include "platform/GlobalObjects.h"
#include "views/IViewController.h"
#include "views/ViewFactory.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QPixmap>
#include <QScreen>
#include <QTextStream>
#include <QTimer>

int main(int argc, char *argv[])
{
    QApplication qapp(argc, argv);
    QApplication::setApplicationName(QStringLiteral("QuorinAdmin"));
    QApplication::setApplicationDisplayName(QStringLiteral("Quorin Administrator"));
    // Ties the windows to the installed menu entry, and so to its icon, on Linux desktops.
    QGuiApplication::setDesktopFileName(QStringLiteral("quorinadmin"));

    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Quorin Administrator: writes rulebases for the Quorin code reviewer."));
    parser.addHelpOption();
    const QCommandLineOption screenshotOption(
        QStringLiteral("screenshot"),
        QStringLiteral("Opens without waiting on any dialog, saves a picture of the main window to "
                       "<file> and exits."),
        QStringLiteral("file"));
    parser.addOption(screenshotOption);
    parser.addPositionalArgument(QStringLiteral("rulebase"),
                                 QStringLiteral("The rulebase to open."));
    parser.process(qapp);
    const QString screenshot = parser.value(screenshotOption);
    const bool interactive = screenshot.isEmpty();

    GuiUserInterface ui(interactive);
    UserInterface::install(&ui);

    if (CreateGlobalObjects() != 0) {
        DestroyGlobalObjects();
        return 1;
    }

    int result = 0;
    {
        frmMain window(interactive);
        ui.setParentWidget(&window);
        GuiFormFactory forms(&window);
        IFormFactory::install(&forms);
        Application application(&window, createView);
        window.setApplication(&application);

        // The command line is one file name, spaces and all.
        const QString commandLine = parser.positionalArguments().join(QLatin1Char(' '));
        RunStartup(application, commandLine);

        if (!interactive) {
            // Let the window lay itself out, then take its picture.
            QTimer::singleShot(300, &window, [&] {
                const bool saved = window.grab().save(screenshot);
                QTextStream(stderr)
                    << (saved ? "Screenshot written to " : "Could not write the screenshot ")
                    << screenshot << Qt::endl;
                result = saved ? 0 : 1;
                window.close();
            });
        }
        const int loop = qapp.exec();
        if (interactive)
            result = loop;
        IFormFactory::install(nullptr);
        ui.setParentWidget(nullptr);
    }
    DestroyGlobalObjects();
    UserInterface::install(nullptr);
    return result;
}
