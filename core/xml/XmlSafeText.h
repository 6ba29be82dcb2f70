#pragma once

#include <QString>
#include <QStringView>
#include <QUtf8StringView>

// XML 1.0 has no way to hold U+0000 to U+001F other than tab, line feed and carriage return,
// nor U+FFFE, U+FFFF or a lone surrogate: not even as a character reference. A document with
// one does not load again, so every text the program writes into XML passes through
// xmlSafeText first, which drops them. Dropping loses only characters no one can see, and
// keeps the rest of the text where an error would lose the whole save.

// True when `text` holds none of those characters.
bool isXmlSafeText(QStringView text);

// `text` without those characters: `text` itself, not copied, when it holds none.
QString xmlSafeText(const QString &text);

// True when `utf8` is printable ASCII, tab, line feed or carriage return only: text that XML
// holds as it is, with no need to decode it for the check above.
bool isXmlSafeAscii(QUtf8StringView utf8);
