#pragma once

#include <QString>
#include <QStringList>
#include <QStringView>
#include <QUtf8StringView>

// The text rules the whole program shares: case-insensitive names and keys, the leading-number
// reading of keys ("5000Key" -> 5000), fixed number formats, and the file's value encodings.
namespace Text {

bool same(const QString &a, const QString &b);

// The number at the start of the text, blanks skipped, the rest ignored; 0 when there is none.
double val(const QString &text);
// val() rounded half to even into 32 bits, as the original runtime's CLng did.
qint32 valLong(const QString &text);

// "0000"-style formats: the number zero-padded to at least `digits` digits.
QString zeroPadded(qint64 number, int digits);

// Booleans as the file writes them.
QString fromBool(bool value);

// Strict conversions of attribute text; they throw QuorinError (type mismatch / overflow).
bool toBool(const QString &text, const QString &source);
qint32 toLong(const QString &text, const QString &source);
qint16 toInteger(const QString &text, const QString &source);
// A plain decimal integer ("-12", at most 18 characters), which toLong and toInteger read without
// the general parse; false for any other text.
bool parsePlainInteger(QStringView text, qint64 &out);
bool parsePlainInteger(QUtf8StringView text, qint64 &out);

// Accepts "." or "," as the decimal sign whatever the locale; unreadable text gives 0.
float stringToSingle(const QString &text);

// Trim removes blanks only, not tabs or line ends.
QString trimBlanks(const QString &text);

} // namespace Text
