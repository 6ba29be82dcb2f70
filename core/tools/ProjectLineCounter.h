#pragma once

#include <QString>
#include <QStringList>

#include <vector>

// The line statistics of Visual Basic projects as the reviewer counts them: each source file
// read past its header, every logical line classed as code, comment or blank.
class ProjectLineCounter final
{
public:
    struct Lines
    {
        qint64 code = 0;
        qint64 comment = 0;       // comment-only lines
        qint64 inLineComment = 0; // code lines that end in a comment; counted as code too
        qint64 blank = 0;
        qint64 total = 0;

        void add(const Lines &other);
    };

    struct SourceFile
    {
        QString name;
        QString path; // absolute
        bool read = false;
        QString problem; // why it was not read
        Lines lines;
    };

    struct Project
    {
        QString name;
        QString path; // absolute
        bool read = false;
        QString problem;
        // Sorted by path, ignoring case.
        std::vector<SourceFile> files;
        Lines lines;
        qint32 filesRead = 0;
        qint32 filesUnread = 0;
    };

    // The project files an argument stands for: itself for a .vbp, the projects of a .vbg
    // in file order. Absolute paths. False, with the reason, for anything else.
    static bool projectFiles(const QString &argument, QStringList &projects, QString &problem);
    static Project count(const QString &projectFile);
};
