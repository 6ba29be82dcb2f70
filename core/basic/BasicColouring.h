#pragma once

#include <QStringView>
#include <QtGlobal>

#include <vector>

// How an editor shows a piece of condition text.
enum class BasicStyle : quint8 {
    Keyword,
    String,
    Comment,
    Number,         // dates too
    QuorinMember,   // "Quorin" and the member behind its dot
    VocabularyName, // a string that names an object, property or parser event
    Invalid
};

struct StyledRange
{
    int start; // in UTF-16 units of the line
    int length;
    BasicStyle style;

    friend bool operator==(const StyledRange &, const StyledRange &) = default;
};

// Colours one line at a time, as a highlighter sees the text. A comment that ends in " _" goes
// on over the next line: `continuedComment` carries that from one line to the next.
namespace BasicColouring {

// Ranges in line order; blanks, names and signs stay plain and have none.
std::vector<StyledRange> colourLine(QStringView line, bool &continuedComment);

} // namespace BasicColouring
