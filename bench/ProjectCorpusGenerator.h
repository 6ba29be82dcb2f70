#pragma once

#include <QStringList>

// A generated tree of Visual Basic projects and groups and what reading it takes.
struct ProjectCorpus
{
    // The groups, then every project, as a build would pass them to `qrbtool stats`.
    QStringList arguments;
    // Every file a line count reads, once per read: each group and project file, and each
    // source file once for every project that names it.
    QStringList reads;
    qint32 projects = 0;
    qint64 sourceLines = 0; // physical lines of the source files, once per read
    qint64 bytes = 0;       // of `reads`
};

// Writes below `folder` a corpus shaped like real code bases: a few hundred projects in systems
// of grouped projects, standalone tools, files of 50 to 30,000 lines from forms with long
// layouts to modules, files shared between projects through "..\" paths, names in the project
// files that differ in case from those on disk, a few missing files, CR LF and LF line ends
// (some mixed in one file), Windows-1252 and UTF-8 text. The same for the same seed.
ProjectCorpus generateProjectCorpus(const QString &folder, unsigned seed = 1);
