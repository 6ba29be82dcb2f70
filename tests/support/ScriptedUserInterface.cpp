#include "support/ScriptedUserInterface.h"

#include "platform/FileUtils.h"
#include "platform/QuorinError.h"

using namespace Qt::StringLiterals;

ScriptedUserInterface::ScriptedUserInterface()
{
    UserInterface::install(this);
}

ScriptedUserInterface::~ScriptedUserInterface()
{
    UserInterface::install(nullptr);
}

MessageResult ScriptedUserInterface::messageBox(const QString &text,
                                                MessageButtons buttons,
                                                MessageIcon icon,
                                                const QString &title,
                                                MessageResult defaultButton)
{
    messages.push_back({text, buttons, icon, title, defaultButton});
    if (buttons == MessageButtons::OK)
        return MessageResult::OK;
    if (failQuestions)
        throw QuorinError(ErrorNumber::ObjectNotSet, u"ScriptedUserInterface"_s, text);
    if (answers.empty()) {
        ++unscriptedQuestions;
        return buttons == MessageButtons::YesNoCancel || buttons == MessageButtons::OKCancel
                   ? MessageResult::Cancel
                   : MessageResult::No;
    }
    const MessageResult answer = answers.front();
    answers.pop_front();
    return answer;
}

static bool answerFileDialog(std::deque<std::optional<QString>> &script, FileDialogRequest &request)
{
    if (script.empty())
        return false;
    const std::optional<QString> answer = script.front();
    script.pop_front();
    if (!answer)
        return false;
    request.path = *answer;
    request.folder = FileUtils::PathFromFilename(*answer);
    request.fileTitle = answer->mid(request.folder.size());
    return true;
}

bool ScriptedUserInterface::getOpenFilename(FileDialogRequest &request)
{
    fileRequests.push_back(request);
    return answerFileDialog(openAnswers, request);
}

bool ScriptedUserInterface::getSaveFilename(FileDialogRequest &request)
{
    fileRequests.push_back(request);
    return answerFileDialog(saveAnswers, request);
}

void ScriptedUserInterface::showHelp(HelpCommand command, const QString &topic, int context)
{
    helpRequests.push_back({command, topic, context});
}

bool ScriptedUserInterface::shellOpen(const QString &document)
{
    opened << document;
    return true;
}

void ScriptedUserInterface::addToRecentDocs(const QString &filename)
{
    recentDocs << filename;
}

bool ScriptedUserInterface::getText(const QString &prompt, const QString &, QString &value)
{
    textPrompts << prompt;
    if (textAnswers.empty())
        return false;
    const std::optional<QString> answer = textAnswers.front();
    textAnswers.pop_front();
    if (!answer)
        return false;
    value = *answer;
    return true;
}

QStringList ScriptedUserInterface::messageTexts() const
{
    QStringList texts;
    for (const ShownMessage &m : messages)
        texts << m.text;
    return texts;
}
