#include "tools/ConsoleUserInterface.h"

#include "platform/GlobalObjects.h"
#include "platform/LogFile.h"

#include <QTemporaryDir>
#include <QTextStream>

namespace {

// The title the error frame gives its boxes; such a box is a fault, not a message of the logic.
const QString unexpectedErrorTitle = QStringLiteral("Quorin Unexpected Error");

} // namespace

ConsoleUserInterface::ConsoleUserInterface(QTextStream *echo)
    : m_echo(echo)
    , m_previous(&UserInterface::current())
{
    if (!gobjLogFile) {
        m_ownLog = std::make_shared<LogFile>();
        // A file that goes with this object: a tool run on a build server must not leave an
        // Error.log beside itself, and the reports reach the console anyway.
        m_logFolder = std::make_unique<QTemporaryDir>();
        m_ownLog->setLogFileName(m_logFolder->filePath(QStringLiteral("Error.log")));
        m_ownLog->setComponent(QStringLiteral("qrbtool"));
        m_ownLog->setComponentVersion(programComponentVersion());
        gobjLogFile = m_ownLog;
    }
    UserInterface::install(this);
}

ConsoleUserInterface::~ConsoleUserInterface()
{
    UserInterface::install(m_previous);
    if (m_ownLog && gobjLogFile == m_ownLog)
        gobjLogFile.reset();
}

MessageResult ConsoleUserInterface::messageBox(
    const QString &text, MessageButtons buttons, MessageIcon, const QString &title, MessageResult)
{
    const QString message
        = title == unexpectedErrorTitle ? title + QStringLiteral(": ") + text : text;
    m_messages << message;
    if (m_echo) {
        *m_echo << "qrbtool: " << message << '\n';
        m_echo->flush();
    }
    return cautiousAnswer(buttons);
}

bool ConsoleUserInterface::getOpenFilename(FileDialogRequest &)
{
    return false;
}

bool ConsoleUserInterface::getSaveFilename(FileDialogRequest &)
{
    return false;
}

void ConsoleUserInterface::showHelp(HelpCommand, const QString &, int) {}

bool ConsoleUserInterface::shellOpen(const QString &)
{
    return false;
}

QStringList ConsoleUserInterface::takeMessages()
{
    QStringList taken;
    taken.swap(m_messages);
    return taken;
}
