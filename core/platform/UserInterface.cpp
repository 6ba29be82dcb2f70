#include "platform/UserInterface.h"

#include <QTextStream>

namespace {

// Used when nothing else is installed: says what it would show and changes nothing.
class HeadlessUserInterface final : public UserInterface
{
public:
    MessageResult messageBox(const QString &text,
                             MessageButtons buttons,
                             MessageIcon,
                             const QString &title,
                             MessageResult) override
    {
        QTextStream(stderr) << title << ": " << text << Qt::endl;
        return cautiousAnswer(buttons);
    }
    bool getOpenFilename(FileDialogRequest &) override { return false; }
    bool getSaveFilename(FileDialogRequest &) override { return false; }
    void showHelp(HelpCommand, const QString &, int) override {}
    bool shellOpen(const QString &) override { return false; }
};

HeadlessUserInterface headless;
UserInterface *installed = nullptr;

} // namespace

UserInterface::~UserInterface() = default;

void UserInterface::addToRecentDocs(const QString &) {}

bool UserInterface::getText(const QString &, const QString &, QString &)
{
    return false;
}

UserInterface &UserInterface::current()
{
    return installed ? *installed : headless;
}

void UserInterface::install(UserInterface *ui)
{
    installed = ui;
}

QString programTitle()
{
    return QStringLiteral("Quorin Administrator");
}

MessageResult cautiousAnswer(MessageButtons buttons)
{
    switch (buttons) {
    case MessageButtons::OK:
        return MessageResult::OK;
    case MessageButtons::YesNo:
        return MessageResult::No;
    case MessageButtons::OKCancel:
    case MessageButtons::YesNoCancel:
        break;
    }
    return MessageResult::Cancel;
}

void showWarning(const QString &text, const QString &title)
{
    UserInterface::current().messageBox(
        text, MessageButtons::OK, MessageIcon::Exclamation, title, MessageResult::OK);
}

MessageResult askYesNo(const QString &text, MessageResult defaultButton, const QString &title)
{
    return UserInterface::current().messageBox(
        text, MessageButtons::YesNo, MessageIcon::Question, title, defaultButton);
}

MessageResult askYesNoCancel(const QString &text, MessageResult defaultButton, const QString &title)
{
    return UserInterface::current().messageBox(
        text, MessageButtons::YesNoCancel, MessageIcon::Question, title, defaultButton);
}

void openDocument(const QString &document)
{
    // Where the desktop has no handler for the type there is no chooser to offer here; the
    // person at least learns where the document is.
    if (!UserInterface::current().shellOpen(document))
        showWarning(QStringLiteral("No program could be found to open '%1'.").arg(document));
}
