#pragma once

#include <QString>

#include <memory>

class ScanSink;
class SourceLineStatistics;
class VirtualSourceFile;

// Walks one source file as the reviewer's parser does and tells its sink every object of the
// catalogue it declares (the file itself, controls of its layout, procedures, arguments,
// variables, constants, Declare, Enum, Type and their elements, events, labels, Implements),
// and every line with the parser events it belongs to. Lines come from the project reader,
// continuations joined; they are counted as the reviewer counts them.
class DeclarationScanner final
{
public:
    explicit DeclarationScanner(ScanSink &sink);
    ~DeclarationScanner();

    // False, with the reason, when the file is missing or can't be read; the sink then heard
    // nothing of it.
    bool scan(VirtualSourceFile &file, QString &problem);
    // The line statistics of the last file scanned.
    const SourceLineStatistics &lines() const { return *m_lines; }

private:
    ScanSink &m_sink;
    std::unique_ptr<SourceLineStatistics> m_lines;
};
