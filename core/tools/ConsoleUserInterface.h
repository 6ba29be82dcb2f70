#pragma once

#include "platform/UserInterface.h"

#include <QStringList>

#include <memory>

class LogFile;
class QTemporaryDir;
class QTextStream;

// The UserInterface of a program with nobody at the screen: every box is written to the echo
// stream (when there is one) and recorded, questions are answered No or Cancel, file dialogs
// are cancelled, help and shell-open do nothing. Nothing ever waits for input.
//
// Installs itself for its lifetime and puts back what was installed before. While no log
// exists it also sets up one that writes no file, so that the error frame's reports come here
// as boxes instead of going to a log a server has no use for.
class ConsoleUserInterface final : public UserInterface
{
public:
    // `echo` may be null: the boxes are then only recorded.
    explicit ConsoleUserInterface(QTextStream *echo);
    ~ConsoleUserInterface() override;
    ConsoleUserInterface(const ConsoleUserInterface &) = delete;
    ConsoleUserInterface &operator=(const ConsoleUserInterface &) = delete;

    MessageResult messageBox(const QString &text,
                             MessageButtons buttons,
                             MessageIcon icon,
                             const QString &title,
                             MessageResult defaultButton) override;
    bool getOpenFilename(FileDialogRequest &request) override;
    bool getSaveFilename(FileDialogRequest &request) override;
    void showHelp(HelpCommand command, const QString &topic, int context) override;
    bool shellOpen(const QString &document) override;

    // The texts of the boxes shown so far, in order; the error frame's carry its title first.
    QStringList messages() const { return m_messages; }
    QStringList takeMessages();

private:
    QTextStream *m_echo = nullptr;
    QStringList m_messages;
    UserInterface *m_previous = nullptr;
    std::shared_ptr<LogFile> m_ownLog;          // set only when this object made the process's log
    std::unique_ptr<QTemporaryDir> m_logFolder; // holds that log's file, removed with it
};
