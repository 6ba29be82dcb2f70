#pragma once

#include <QSyntaxHighlighter>
#include <QTextCharFormat>

#include <array>

// Colours condition text line by line from the lexer's tokens; a block's state says whether a
// comment goes on from the line before.
class BasicHighlighter final : public QSyntaxHighlighter
{
    Q_OBJECT

public:
    explicit BasicHighlighter(QTextDocument *document);

protected:
    void highlightBlock(const QString &text) override;

private:
    std::array<QTextCharFormat, 7> m_formats; // by BasicStyle
};
