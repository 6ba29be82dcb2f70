#include "TypeLibSamples.h"
#include "support/TestEnvironment.h"
#include "support/TestSeed.h"

#include "typelib/TypeLibReader.h"

#include <QFile>
#include <QRegularExpression>

#include <gtest/gtest.h>

#include <random>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

// A copy of exactly the data's size, so a sanitizer sees any read past its end.
std::optional<TypeLibInfo> readExact(const QByteArray &data, int resourceId = 0)
{
    const std::vector<char> exact(data.begin(), data.end());
    const auto info = TypeLibReader::readData(QByteArrayView(exact.data(), qsizetype(exact.size())),
                                              resourceId);
    // Whatever the damage, a result is a whole record.
    static const QRegularExpression guid(
        u"^\\{[0-9A-F]{8}-[0-9A-F]{4}-[0-9A-F]{4}-[0-9A-F]{4}-[0-9A-F]{12}\\}$"_s);
    if (info) {
        EXPECT_TRUE(guid.match(info->guid).hasMatch()) << info->guid.toStdString();
    }
    return info;
}

struct Subject
{
    const char *name;
    QByteArray data;
};

QList<Subject> subjects()
{
    using namespace TypeLibSamples;
    QList<Subject> list = {
        {"msft", msft(3, 1, "help", "Lib")},
        {"sltg", sltg(3, 1, "help")},
        {"pe32", pe(false, {{1, msft(3, 1, "help", "Lib")}, {2, sltg(3, 1, "help")}})},
    };
    const QString dir = TestEnvironment::sharedDataDir() + u"/typelib/"_s;
    for (const char *name : {"ReportLib.tlb", "Reports.dll"}) {
        QFile file(dir + QLatin1String(name));
        if (file.open(QIODevice::ReadOnly))
            list.append({name, file.readAll()});
    }
    return list;
}

} // namespace

TEST(TypeLibFuzz, TruncatedAtEveryLengthAndFlippedBytes)
{
    const TestSeed seed(20240611u);
    std::mt19937 random(seed.value());
    for (const Subject &s : subjects()) {
        SCOPED_TRACE(s.name);
        const auto whole = readExact(s.data);
        ASSERT_TRUE(whole.has_value());
        int found = 0;
        for (qsizetype length = 0; length < s.data.size(); ++length) {
            const auto info = readExact(s.data.left(length));
            // A prefix gives the library or nothing, never a different one.
            if (info) {
                EXPECT_EQ(info->guid, whole->guid);
                EXPECT_EQ(info->helpString, whole->helpString);
                ++found;
            }
        }
        // Only prefixes that keep everything the reader needs still give the library.
        EXPECT_LT(found, s.data.size() / 2);

        std::uniform_int_distribution<qsizetype> position(0, s.data.size() - 1);
        int unchanged = 0;
        constexpr int Rounds = 3000;
        for (int round = 0; round < Rounds; ++round) {
            QByteArray damaged = s.data;
            // Mostly one byte, sometimes a run of several, to break offsets and counts alike.
            for (int i = 0; i < (round % 4 == 0 ? 8 : 1); ++i)
                damaged[position(random)] = char(random() & 0xFF);
            const auto info = readExact(damaged, round % 3);
            unchanged += info && info->guid == whole->guid ? 1 : 0;
        }
        // Most bytes are not read at all, so most damage leaves the library readable.
        EXPECT_GT(unchanged, Rounds / 10);
    }
}
