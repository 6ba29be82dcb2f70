#pragma once

#include <QString>

enum class MessageButtons { OK, OKCancel, YesNo, YesNoCancel };
enum class MessageIcon { None, Critical, Question, Exclamation, Information };
enum class MessageResult { OK, Cancel, Yes, No };

// The in/out values of an open or save dialog; on confirmation `folder` is `path` less `fileTitle`.
struct FileDialogRequest
{
    int fileType = 1;
    QString title;
    QString fileTitle;
    QString folder;
    QString path;
};

enum class HelpCommand { Contents, Search, Topic, Context };

// Everything the logic asks of a person or of the desktop. The GUI implements it with real
// dialogs; tests with a scripted fake that records what was shown; tools with the console.
class UserInterface
{
public:
    virtual ~UserInterface();

    // `defaultButton` is the answer Enter gives: the safe one for a question that destroys.
    virtual MessageResult messageBox(const QString &text,
                                     MessageButtons buttons,
                                     MessageIcon icon,
                                     const QString &title,
                                     MessageResult defaultButton)
        = 0;
    virtual bool getOpenFilename(FileDialogRequest &request) = 0;
    virtual bool getSaveFilename(FileDialogRequest &request) = 0;
    virtual void showHelp(HelpCommand command, const QString &topic, int context) = 0;
    // Opens a document or address with the desktop's handler; false when nothing could.
    virtual bool shellOpen(const QString &document) = 0;
    virtual void addToRecentDocs(const QString &filename);
    // Asks for one line of text, `value` holding the proposal and then the answer; false when
    // the person declined (and always here, where nobody can be asked).
    virtual bool getText(const QString &prompt, const QString &title, QString &value);

    // The process-wide interface; a headless one (stderr, cautious answers) until one is installed.
    static UserInterface &current();
    // Not owned; pass nullptr to go back to the headless one.
    static void install(UserInterface *ui);
};

// The program's title, carried by every message box that is given none.
QString programTitle();

// What a box of these buttons gets where nobody can be asked: the answer that changes nothing
// (Cancel, else No), whatever the box's own default.
MessageResult cautiousAnswer(MessageButtons buttons);

// The box shapes the logic uses, each on UserInterface::current(). Every question names its
// default answer: No where Yes would delete or discard something.
void showWarning(const QString &text, const QString &title = programTitle());
MessageResult
askYesNo(const QString &text, MessageResult defaultButton, const QString &title = programTitle());
MessageResult askYesNoCancel(const QString &text,
                             MessageResult defaultButton,
                             const QString &title = programTitle());
// Opens a document or address with the desktop's handler, or says that nothing could.
void openDocument(const QString &document);
