#include "support/TestSeed.h"

#include <QByteArray>
#include <QtGlobal>

TestSeed::TestSeed(std::uint32_t fallback, std::source_location where)
    : m_value(chosen(fallback))
    , m_trace(where.file_name(),
              int(where.line()),
              "random seed " + std::to_string(m_value)
                  + " (QUORIN_TEST_SEED=" + std::to_string(m_value) + " replays it)")
{
}

std::uint32_t TestSeed::chosen(std::uint32_t fallback)
{
    if (!qEnvironmentVariableIsSet("QUORIN_TEST_SEED"))
        return fallback;
    bool ok = false;
    const std::uint32_t seed = qgetenv("QUORIN_TEST_SEED").trimmed().toUInt(&ok, 0);
    if (!ok) {
        ADD_FAILURE() << "QUORIN_TEST_SEED is not a number from 0 to 4294967295";
        return fallback;
    }
    return seed;
}
