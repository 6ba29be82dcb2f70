#include "rulebase/ScriptFile.h"

#include "collections/StringKeyedArrayList.h"
#include "platform/ErrorFrame.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace {

constexpr const char *module = "ScriptFile";
const QString crlf = QStringLiteral("\r\n");
const QString fileTitle = QStringLiteral("QuorinScripts.qrs");
// The runtime's number for a file that cannot be written.
constexpr qint32 pathFileAccessError = 75;

// The folder with its trailing separator; the program's folder when there is no temporary one.
QString withSeparator(QString folder)
{
    if (folder.isEmpty())
        folder = QCoreApplication::applicationDirPath();
    folder = QDir::toNativeSeparators(folder);
    if (!folder.endsWith(QDir::separator()))
        folder += QDir::separator();
    return folder;
}

} // namespace

ScriptFile::ScriptFile()
    : ScriptFile(QDir::tempPath())
{
}

ScriptFile::ScriptFile(const QString &folder)
    : m_fullFilename(withSeparator(folder) + fileTitle)
    , m_scripts(std::make_unique<StringKeyedArrayList>())
{
}

ScriptFile::~ScriptFile() = default;

QString ScriptFile::ScriptPrototype()
{
    return QStringLiteral("Public Sub RunScript(ByVal v_lRuleID As Long)");
}

void ScriptFile::AddScript(qint32 ruleID, const QString &script)
{
    guardedVoid("AddScript", module, [&] {
        const QString key = QString::number(ruleID);
        if (script.isEmpty() || m_scripts->Contains(key))
            return;
        m_scripts->Add(key, script, false);
    });
}

QString ScriptFile::CreateEntryMethod() const
{
    QString text = ScriptPrototype() + crlf + crlf;
    if (m_scripts->Count() > 0) {
        text += QStringLiteral("    Select Case v_lRuleID") + crlf;
        for (qint32 i = 1; i <= m_scripts->Count(); ++i) {
            const QString key = m_scripts->Key(i);
            text += QStringLiteral("        Case ") + key + crlf;
            text += QStringLiteral("            Call Method_") + key + crlf;
        }
        text += QStringLiteral("    End Select") + crlf + crlf;
    }
    text += QStringLiteral("End Sub") + crlf;
    return text;
}

QString ScriptFile::ScriptText() const
{
    QString text = QStringLiteral("Attribute VB_Name = \"QuorinScripts\"") + crlf + crlf;
    text += CreateEntryMethod();
    const QString entry = QStringLiteral("Sub Main");
    for (qint32 i = 1; i <= m_scripts->Count(); ++i) {
        const QString key = m_scripts->Key(i);
        QString script = m_scripts->Item(i);
        // Only the first: a second "Sub Main" is the author's and the check will refuse it.
        const qsizetype at = script.indexOf(entry, 0, Qt::CaseInsensitive);
        if (at >= 0)
            script.replace(at, entry.size(), QStringLiteral("Sub Method_") + key);
        text += crlf + crlf + script;
    }
    // The closing line end, then the one the file's single printed line ends with.
    text += crlf + crlf;
    return text;
}

bool ScriptFile::CreateScriptFile()
{
    return guardedVoid("CreateScriptFile", module, [&] {
        const QByteArray bytes = ScriptText().toUtf8();
        // A read-only file left by an earlier run must not stop the replacement.
        QFileInfo existing(m_fullFilename);
        if (existing.exists())
            QFile::setPermissions(m_fullFilename,
                                  QFile::permissions(m_fullFilename) | QFileDevice::WriteOwner);
        QSaveFile file(m_fullFilename);
        const bool written
            = file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit();
        if (!written)
            throw QuorinError(
                pathFileAccessError,
                QStringLiteral("ScriptFile::CreateScriptFile"),
                QStringLiteral("The condition script file %1 could not be written: %2")
                    .arg(m_fullFilename, file.errorString()));
    });
}
