#pragma once

#include "preview/PreviewFinding.h"

#include <QString>

#include <vector>

// One project a preview read, with its line statistics as the reviewer counts them.
struct PreviewProject
{
    QString name;
    QString path; // absolute
    bool read = false;
    qint32 files = 0; // source files read
    qint32 unreadFiles = 0;
    qint64 codeLines = 0; // in-line comment lines included
    qint64 commentLines = 0;
    qint64 inLineCommentLines = 0;
    qint64 blankLines = 0;
    qint64 totalLines = 0;
};

// What a preview found, sorted by project, file, line and rule.
struct PreviewResult
{
    std::vector<PreviewProject> projects;
    std::vector<PreviewFinding> findings;
    bool cancelled = false;

    qint64 count(PreviewFinding::Kind kind) const;
};
