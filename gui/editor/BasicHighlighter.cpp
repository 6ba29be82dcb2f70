#include "gui/editor/BasicHighlighter.h"

#include "basic/BasicColouring.h"

namespace {

QTextCharFormat charFormat(const QColor &colour, bool bold = false, bool italic = false)
{
    QTextCharFormat result;
    result.setForeground(colour);
    if (bold)
        result.setFontWeight(QFont::Bold);
    result.setFontItalic(italic);
    return result;
}

} // namespace

BasicHighlighter::BasicHighlighter(QTextDocument *document)
    : QSyntaxHighlighter(document)
{
    m_formats[size_t(BasicStyle::Keyword)] = charFormat(QColor(0, 0, 160), true);
    m_formats[size_t(BasicStyle::String)] = charFormat(QColor(163, 21, 21));
    m_formats[size_t(BasicStyle::Comment)] = charFormat(QColor(0, 128, 0), false, true);
    m_formats[size_t(BasicStyle::Number)] = charFormat(QColor(9, 134, 88));
    m_formats[size_t(BasicStyle::QuorinMember)] = charFormat(QColor(128, 0, 128), true);
    m_formats[size_t(BasicStyle::VocabularyName)] = charFormat(QColor(0, 112, 160), true);
    QTextCharFormat invalid = charFormat(QColor(200, 0, 0));
    invalid.setUnderlineStyle(QTextCharFormat::WaveUnderline);
    invalid.setUnderlineColor(Qt::red);
    m_formats[size_t(BasicStyle::Invalid)] = invalid;
}

void BasicHighlighter::highlightBlock(const QString &text)
{
    bool continued = previousBlockState() == 1;
    for (const StyledRange &range : BasicColouring::colourLine(text, continued))
        setFormat(range.start, range.length, m_formats[size_t(range.style)]);
    setCurrentBlockState(continued ? 1 : 0);
}
