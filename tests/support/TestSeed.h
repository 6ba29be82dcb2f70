#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <source_location>
#include <string>

// The seed of a randomised test: the fixed default it is given, or QUORIN_TEST_SEED when that
// is set, so that another sequence can be tried and a failure replayed. While it lives, every
// failure in the test names the seed that produced it.
class TestSeed final
{
public:
    explicit TestSeed(std::uint32_t fallback,
                      std::source_location where = std::source_location::current());
    TestSeed(const TestSeed &) = delete;
    TestSeed &operator=(const TestSeed &) = delete;

    std::uint32_t value() const { return m_value; }

private:
    static std::uint32_t chosen(std::uint32_t fallback);

    std::uint32_t m_value;
    ::testing::ScopedTrace m_trace;
};
