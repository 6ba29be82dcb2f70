#pragma once

#include <QString>

enum class SourceLineType : qint32;

// Line counters of one source file or project. An in-line comment line is also a code line,
// so TotalLines is BlankLines + CommentOnlyLines + CodeLines.
class SourceLineStatistics final
{
public:
    qint32 BlankLines() const { return m_blankLines; }
    void setBlankLines(qint32 value) { m_blankLines = value; }
    qint32 CommentOnlyLines() const { return m_commentOnlyLines; }
    void setCommentOnlyLines(qint32 value) { m_commentOnlyLines = value; }
    qint32 InLineCommentLines() const { return m_inLineCommentLines; }
    void setInLineCommentLines(qint32 value) { m_inLineCommentLines = value; }
    qint32 CodeLines() const { return m_codeLines; }
    void setCodeLines(qint32 value) { m_codeLines = value; }
    qint32 TotalLines() const { return m_totalLines; }
    void setTotalLines(qint32 value) { m_totalLines = value; }

    // Types 0 to 3 count; any other, the continuation type among them, counts nothing.
    void IncrementCount(qint32 lineType);
    void IncrementCount(SourceLineType lineType);
    // As many IncrementCount calls: at once when no counter can pass its limit.
    void IncrementCount(qint32 lineType, qint64 times);
    // "TotalLineCount", "CodeLineCount", "BlankLineCount", "CommentLineCount",
    // "InLineCommentCount"; an unknown name gives false and leaves `value` alone.
    bool SourceLineStatByName(const QString &name, qint32 &value) const;

private:
    qint32 m_blankLines = 0;
    qint32 m_commentOnlyLines = 0;
    qint32 m_inLineCommentLines = 0;
    qint32 m_codeLines = 0;
    qint32 m_totalLines = 0;
};
