#pragma once

// Searches of source bytes for the few characters that end a line or matter to its type, a
// machine word at a time: every line of every file goes through them.
namespace ByteScan {

// The first CR or LF in [begin, end), or `end`.
const char *findLineEnd(const char *begin, const char *end);
// The first double quote, apostrophe or colon in [begin, end), or `end`.
const char *findCommentMark(const char *begin, const char *end);

} // namespace ByteScan
