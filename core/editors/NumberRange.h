#pragma once

#include <QtGlobal>

#include <limits>

// The values a digits-only box may hold: the form model says what its field can store, and the
// box refuses a keystroke that would leave the range, so what is shown is what is saved.
struct NumberRange
{
    qint32 minimum = 0;
    qint32 maximum = 0;

    // A box over a 16-bit value.
    static constexpr NumberRange sixteenBit() { return {0, std::numeric_limits<qint16>::max()}; }
    // A box over a 32-bit value.
    static constexpr NumberRange thirtyTwoBit() { return {0, std::numeric_limits<qint32>::max()}; }
};
