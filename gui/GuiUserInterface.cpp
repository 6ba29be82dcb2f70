#include "gui/GuiUserInterface.h"

#include "gui/window/HelpWindow.h"

#include "application/HelpTopics.h"
#include "platform/FileUtils.h"

#include <QDesktopServices>
#include <QFileDialog>
#include <QInputDialog>
#include <QMessageBox>
#include <QTextStream>
#include <QUrl>

GuiUserInterface::GuiUserInterface(bool interactive)
    : m_interactive(interactive)
{
}

MessageResult GuiUserInterface::messageBox(const QString &text,
                                           MessageButtons buttons,
                                           MessageIcon icon,
                                           const QString &title,
                                           MessageResult defaultButton)
{
    if (!m_interactive) {
        QTextStream(stderr) << title << ": " << text << Qt::endl;
        return buttons == MessageButtons::OK || buttons == MessageButtons::OKCancel
                   ? MessageResult::OK
                   : MessageResult::No;
    }
    QMessageBox box(m_parent);
    box.setObjectName(QStringLiteral("QuorinMessageBox"));
    box.setWindowTitle(title);
    box.setText(text);
    switch (icon) {
    case MessageIcon::Critical:
        box.setIcon(QMessageBox::Critical);
        break;
    case MessageIcon::Question:
        box.setIcon(QMessageBox::Question);
        break;
    case MessageIcon::Exclamation:
        box.setIcon(QMessageBox::Warning);
        break;
    case MessageIcon::Information:
        box.setIcon(QMessageBox::Information);
        break;
    case MessageIcon::None:
        break;
    }
    switch (buttons) {
    case MessageButtons::OK:
        box.setStandardButtons(QMessageBox::Ok);
        break;
    case MessageButtons::OKCancel:
        box.setStandardButtons(QMessageBox::Ok | QMessageBox::Cancel);
        break;
    case MessageButtons::YesNo:
        box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
        break;
    case MessageButtons::YesNoCancel:
        box.setStandardButtons(QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
        break;
    }
    switch (defaultButton) {
    case MessageResult::OK:
        box.setDefaultButton(QMessageBox::Ok);
        break;
    case MessageResult::Cancel:
        box.setDefaultButton(QMessageBox::Cancel);
        break;
    case MessageResult::Yes:
        box.setDefaultButton(QMessageBox::Yes);
        break;
    case MessageResult::No:
        box.setDefaultButton(QMessageBox::No);
        break;
    }
    switch (box.exec()) {
    case QMessageBox::Yes:
        return MessageResult::Yes;
    case QMessageBox::No:
        return MessageResult::No;
    case QMessageBox::Cancel:
        return MessageResult::Cancel;
    default:
        return MessageResult::OK;
    }
}

QString GuiUserInterface::qtFilter(int fileType, bool forSave)
{
    QString filter;
    switch (fileType) {
    case 1:
        filter = forSave ? QStringLiteral("Quorin Rulebases (*.qrb)|*.qrb")
                         : QStringLiteral("Quorin Rulebases (*.qrb)|*.qrb|All Files (*.*)|*.*");
        break;
    case 2:
        filter = QStringLiteral("Quorin Batch Files (*.batch)|*.batch");
        break;
    case 3:
        filter = QStringLiteral("VB Projects (*.vbp)|*.vbp");
        break;
    case 4:
        filter = QStringLiteral("VB Project Groups (*.vbg)|*.vbg");
        break;
    case 5:
        // Both kinds first: a folder of projects must not look empty.
        filter = QStringLiteral("VB Projects and Groups (*.vbp, *.vbg)|*.vbp;*.vbg|"
                                "VB Projects (*.vbp)|*.vbp|VB Project Groups (*.vbg)|*.vbg");
        break;
    case 6:
        filter = QStringLiteral("ActiveX Controls (*.ocx)|*.ocx");
        break;
    case 7:
        filter = QStringLiteral(
            "Type Libraries (*.tlb, *.olb)|*.tlb;*.olb|Dynamic Link Libraries (*.dll)|*.dll|"
            "Applications (*.exe)|*.exe");
        break;
    case 8:
        filter = QStringLiteral("Log Files (*.log)|*.log|All Files (*.*)|*.*");
        break;
    case 9:
        filter = QStringLiteral("Results Databases (*.mdb)|*.mdb");
        break;
    case 11:
        filter = QStringLiteral("Rulebase Documents (*.html)|*.html|All Files (*.*)|*.*");
        break;
    default:
        filter = QStringLiteral("All Files (*.*)|*.*");
        break;
    }
    // Pairs of description and patterns; Qt wants "Description (patterns)" joined by ";;".
    const QStringList parts = filter.split(QLatin1Char('|'));
    QStringList qt;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        QString patterns = parts.at(i + 1);
        patterns.replace(QLatin1Char(';'), QLatin1Char(' '));
        QString description = parts.at(i);
        description = description.left(description.indexOf(QLatin1String(" ("))).trimmed();
        qt << description + QStringLiteral(" (") + patterns + QLatin1Char(')');
    }
    return qt.join(QStringLiteral(";;"));
}

static bool finishRequest(const QString &chosen, FileDialogRequest &request)
{
    if (chosen.isEmpty())
        return false;
    request.path = chosen;
    request.folder = FileUtils::PathFromFilename(chosen);
    request.fileTitle = chosen.mid(request.folder.size());
    return true;
}

bool GuiUserInterface::getOpenFilename(FileDialogRequest &request)
{
    if (!m_interactive)
        return false;
    const QString start = request.path.isEmpty() ? request.folder : request.path;
    return finishRequest(QFileDialog::getOpenFileName(
                             m_parent, request.title, start, qtFilter(request.fileType, false)),
                         request);
}

bool GuiUserInterface::getSaveFilename(FileDialogRequest &request)
{
    if (!m_interactive)
        return false;
    QFileDialog dialog(m_parent, request.title, request.folder, qtFilter(request.fileType, true));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(request.fileType == 2 ? QStringLiteral("batch")
                                                  : QStringLiteral("qrb"));
    dialog.selectFile(request.path.isEmpty() ? request.fileTitle : request.path);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return false;
    return finishRequest(dialog.selectedFiles().constFirst(), request);
}

void GuiUserInterface::showHelp(HelpCommand command, const QString &topic, int context)
{
    // A run that waits for nobody opens no window that would outlive the main one.
    if (!m_interactive) {
        QTextStream(stderr) << "Help: "
                            << (command == HelpCommand::Context ? HelpTopics::topicPath(context)
                                                                : topic)
                            << Qt::endl;
        return;
    }
    HelpWindow *help = HelpWindow::instance(m_parent);
    switch (command) {
    case HelpCommand::Contents:
        help->showContents();
        break;
    case HelpCommand::Search:
        help->showSearch(topic);
        break;
    case HelpCommand::Topic:
        help->showTopic(topic);
        break;
    case HelpCommand::Context:
        help->showContext(context);
        break;
    }
}

bool GuiUserInterface::shellOpen(const QString &document)
{
    if (!m_interactive)
        return false;
    const QUrl url
        = document.contains(QLatin1String("://")) ? QUrl(document) : QUrl::fromLocalFile(document);
    return QDesktopServices::openUrl(url);
}

bool GuiUserInterface::getText(const QString &prompt, const QString &title, QString &value)
{
    if (!m_interactive)
        return false;
    bool ok = false;
    const QString answer
        = QInputDialog::getText(m_parent, title, prompt, QLineEdit::Normal, value, &ok);
    if (ok)
        value = answer;
    return ok;
}
