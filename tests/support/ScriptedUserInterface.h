#pragma once

#include "platform/UserInterface.h"

#include <QStringList>

#include <deque>
#include <optional>
#include <vector>

struct ShownMessage
{
    QString text;
    MessageButtons buttons;
    MessageIcon icon;
    QString title;
    MessageResult defaultButton;
};

struct HelpRequest
{
    HelpCommand command;
    QString topic;
    int context;
};

// A UserInterface for tests: records every box, dialog and help request, and answers from
// scripts given in advance. Installs itself for its lifetime.
class ScriptedUserInterface final : public UserInterface
{
public:
    ScriptedUserInterface();
    ~ScriptedUserInterface() override;

    MessageResult messageBox(const QString &text,
                             MessageButtons buttons,
                             MessageIcon icon,
                             const QString &title,
                             MessageResult defaultButton) override;
    bool getOpenFilename(FileDialogRequest &request) override;
    bool getSaveFilename(FileDialogRequest &request) override;
    void showHelp(HelpCommand command, const QString &topic, int context) override;
    bool shellOpen(const QString &document) override;
    void addToRecentDocs(const QString &filename) override;
    bool getText(const QString &prompt, const QString &title, QString &value) override;

    QStringList messageTexts() const;

    // Answers to questions, in order; an unscripted question is answered No (Cancel for
    // Yes/No/Cancel) and counted, so a test can tell that it was not expected.
    std::deque<MessageResult> answers;
    // Paths chosen in file dialogs, in order; nullopt or an empty script means Cancel.
    std::deque<std::optional<QString>> openAnswers;
    std::deque<std::optional<QString>> saveAnswers;
    // Answers to text prompts, in order; nullopt or an empty script means Cancel.
    std::deque<std::optional<QString>> textAnswers;

    // Questions (not plain messages) fail with an error, as a broken interface would.
    bool failQuestions = false;

    std::vector<ShownMessage> messages;
    std::vector<FileDialogRequest> fileRequests;
    std::vector<HelpRequest> helpRequests;
    QStringList opened;
    QStringList recentDocs;
    QStringList textPrompts;
    int unscriptedQuestions = 0;
};
