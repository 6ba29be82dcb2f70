#include "ProjectGenerator.h"

#include <QByteArray>
#include <QFile>

namespace ProjectGenerator {

namespace {

// One routine with what real code has: comments after code, an apostrophe inside a string,
// a continued line, a conditional compilation block, Windows-1252 text and blank lines.
QByteArray routine(int module, int n, int routines)
{
    const QByteArray id = QByteArray::number(module * routines + n);
    return "Public Function Check" + id
           + "(ByVal Name As String, Optional ByVal Limit As Long = 25) As Boolean\r\n"
             "    ' checks name "
           + id
           + ": caf\xe9 na\xefve \x93quoted\x94\r\n"
             "    Dim k As Long, s As String\r\n"
             "    s = Trim$(Name) ' trailing comment\r\n"
             "\r\n"
             "    For k = 1 To Len(s)\r\n"
             "        If Mid$(s, k, 1) = \"'\" Then Exit For\r\n"
             "    Next k\r\n"
             "#If DEBUG_BUILD Then\r\n"
             "    Debug.Print \"Check"
           + id
           + ": \"\"\" & s & \"\"\"\"\r\n"
             "#End If\r\n"
             "    Rem the limit counts characters, not bytes\r\n"
             "    Check"
           + id
           + " = (Len(s) <= Limit) And _\r\n"
             "        (InStr(s, \"_\") = 0)\r\n"
             "\r\n"
             "    Select Case Left$(s, 1)\r\n"
             "        Case \"a\" To \"z\": Check"
           + id
           + " = False\r\n"
             "    End Select\r\n"
             "End Function\r\n"
             "\r\n";
}

} // namespace

QString writeProject(const QString &folder, int modules, int routines)
{
    QByteArray vbp = "Type=Exe\r\n"
                     "Reference=*\\G{00020430-0000-0000-C000-000000000046}#2.0#0#C:"
                     "\\WINDOWS\\System32\\stdole2.tlb#OLE Automation\r\n";
    for (int m = 1; m <= modules; ++m) {
        const QByteArray name = "modVolume" + QByteArray::number(m);
        QByteArray text = "Attribute VB_Name = \"" + name + "\"\r\nOption Explicit\r\n";
        for (int r = 1; r <= routines; ++r)
            text += routine(m, r, routines);
        QFile file(folder + QLatin1Char('/') + QString::fromLatin1(name) + QStringLiteral(".bas"));
        if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
            return QString();
        vbp += "Module=" + name + "; " + name + ".bas\r\n";
    }
    vbp += "Name=\"Volume\"\r\n";
    const QString project = folder + QStringLiteral("/Volume.vbp");
    QFile file(project);
    if (!file.open(QIODevice::WriteOnly) || file.write(vbp) != vbp.size())
        return QString();
    return project;
}

} // namespace ProjectGenerator
