#pragma once

#include "platform/QuorinError.h"

#include <type_traits>
#include <utility>

// The standard error frame: a routine of substance runs its body through guarded(); a failure
// is reported through the log (and its box) and the routine gives its failure value instead.
// No exception leaves a guarded body.
void reportError(const QuorinError &error, const char *function, const char *module);
// How many failures have been reported so far: a long operation compares it before and after to
// learn whether any frame inside it gave up on something.
quint64 reportedErrorCount();

template<typename Body, typename Fail>
std::invoke_result_t<Body>
guarded(const char *function, const char *module, Fail &&failValue, Body &&body)
{
    try {
        return std::forward<Body>(body)();
    } catch (const std::exception &e) {
        reportError(QuorinError::fromStd(e), function, module);
    }
    return std::forward<Fail>(failValue);
}

// For routines that give nothing; the result says whether the body ran to its end.
template<typename Body>
bool guardedVoid(const char *function, const char *module, Body &&body)
{
    try {
        std::forward<Body>(body)();
        return true;
    } catch (const std::exception &e) {
        reportError(QuorinError::fromStd(e), function, module);
    }
    return false;
}
