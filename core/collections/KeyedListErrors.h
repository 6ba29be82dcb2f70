#pragma once

#include <QString>

// The two errors every keyed list raises to its caller. All of them report under the source
// "KeyedArrayList::<member>", whichever keyed list they come from.
namespace KeyedListErrors {

[[noreturn]] void raiseNoSuchItem(const char *member);
[[noreturn]] void raiseDuplicateKey(const QString &key);

} // namespace KeyedListErrors
