#pragma once

#include <QString>
#include <QStringView>

struct DeclaredObject;

// Where the declaration scanner hands what it meets in a source file.
class ScanSink
{
public:
    virtual ~ScanSink() = default;

    virtual void declared(DeclaredObject &&object) = 0;
    // The text of one logical line at the parser events it belongs to (bit n for event n):
    // for code, string literals emptied and the comment cut as the line analysis finds them;
    // for the header and layout lines of a form, the line as it stands.
    virtual void code(quint64 events, QStringView text, qint32 line) = 0;
};
