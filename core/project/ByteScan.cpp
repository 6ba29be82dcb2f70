#include "project/ByteScan.h"

#include <bit>
#include <cstdint>
#include <cstring>

#if defined(__SSE2__) || defined(_M_X64)
#include <emmintrin.h>
#define QUORIN_BYTESCAN_SSE2 1
#endif

namespace ByteScan {

namespace {

#ifdef QUORIN_BYTESCAN_SSE2
// One bit for each of the 16 bytes at `p` that is one of `Bytes`.
template<char... Bytes>
unsigned marks(const char *p)
{
    const __m128i chunk = _mm_loadu_si128(reinterpret_cast<const __m128i *>(p));
    __m128i found = _mm_setzero_si128();
    ((found = _mm_or_si128(found, _mm_cmpeq_epi8(chunk, _mm_set1_epi8(Bytes)))), ...);
    return unsigned(_mm_movemask_epi8(found));
}
#endif

constexpr std::uint64_t Ones = 0x0101010101010101ULL;
constexpr std::uint64_t Highs = 0x8080808080808080ULL;

// The high bit of each byte of `word` equal to `byte`. Above a true match a false one can
// show (the borrow runs on), so only the lowest bit set is to be trusted.
constexpr std::uint64_t matches(std::uint64_t word, char byte)
{
    const std::uint64_t x = word ^ (Ones * static_cast<unsigned char>(byte));
    return (x - Ones) & ~x & Highs;
}

template<char... Bytes>
const char *findAny(const char *begin, const char *end)
{
    const char *p = begin;
#ifdef QUORIN_BYTESCAN_SSE2
    if (end - p >= 16) {
        for (; end - p >= 16; p += 16) {
            if (const unsigned found = marks<Bytes...>(p))
                return p + std::countr_zero(found);
        }
        if (p == end)
            return end;
        // The last bytes in one load that ends at `end`, those already seen shifted out.
        const unsigned found = marks<Bytes...>(end - 16) >> (16 - (end - p));
        return found ? p + std::countr_zero(found) : end;
    }
#endif
    if constexpr (std::endian::native == std::endian::little) {
        for (; end - p >= 8; p += 8) {
            std::uint64_t word;
            std::memcpy(&word, p, sizeof word);
            if (const std::uint64_t found = (matches(word, Bytes) | ...))
                return p + std::countr_zero(found) / 8;
        }
    }
    for (; p < end; ++p) {
        if (((*p == Bytes) || ...))
            return p;
    }
    return end;
}

} // namespace

const char *findLineEnd(const char *begin, const char *end)
{
    return findAny<'\r', '\n'>(begin, end);
}

const char *findCommentMark(const char *begin, const char *end)
{
    return findAny<'"', '\'', ':'>(begin, end);
}

} // namespace ByteScan
