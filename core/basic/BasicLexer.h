#pragma once

#include "basic/BasicToken.h"

#include <QStringView>

#include <vector>

// Cuts condition text into tokens, comments and line continuations included, so that an editor
// can colour every character that is not blank. The last token is always EndOfText.
class BasicLexer
{
public:
    static std::vector<BasicToken> tokenize(QStringView text);
    // BasicKeyword::None for a word that is not one; case is ignored.
    static BasicKeyword keywordFor(QStringView word);
};
