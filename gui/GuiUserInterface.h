#pragma once

#include "platform/UserInterface.h"

class QWidget;

// The desktop's dialogs behind the core's UserInterface. Non-interactive (as in a headless
// run that only takes a screenshot), questions get their default answer and nothing waits.
class GuiUserInterface final : public UserInterface
{
public:
    explicit GuiUserInterface(bool interactive);

    void setParentWidget(QWidget *parent) { m_parent = parent; }
    bool interactive() const { return m_interactive; }

    MessageResult messageBox(const QString &text,
                             MessageButtons buttons,
                             MessageIcon icon,
                             const QString &title,
                             MessageResult defaultButton) override;
    bool getOpenFilename(FileDialogRequest &request) override;
    bool getSaveFilename(FileDialogRequest &request) override;
    void showHelp(HelpCommand command, const QString &topic, int context) override;
    bool shellOpen(const QString &document) override;
    bool getText(const QString &prompt, const QString &title, QString &value) override;

    // "Quorin Rulebases (*.qrb)|*.qrb|All Files (*.*)|*.*" in the form Qt's dialogs take.
    static QString qtFilter(int fileType, bool forSave);

private:
    QWidget *m_parent = nullptr;
    bool m_interactive;
};
