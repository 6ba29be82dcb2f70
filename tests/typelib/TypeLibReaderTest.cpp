#include "TypeLibSamples.h"
#include "support/TestEnvironment.h"

#include "typelib/TypeLibReader.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

using namespace TypeLibSamples;

namespace {

const QString SampleGuid = u"{01234567-89AB-CDEF-0123-456789ABCDEF}"_s;

QString dataDir()
{
    return TestEnvironment::sharedDataDir() + u"/typelib"_s;
}

QByteArray fileContent(const QString &name)
{
    QFile file(dataDir() + QLatin1Char('/') + name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QList<int> resourceIds(const QList<TypeLibInfo> &list)
{
    QList<int> ids;
    for (const TypeLibInfo &info : list)
        ids.append(info.resourceId);
    return ids;
}

} // namespace

TEST(TypeLibSharedFiles, MatchExpectedTable)
{
    if (!QFileInfo::exists(dataDir() + u"/expected.tsv"_s))
        GTEST_SKIP() << "no shared type library data";
    const QStringList rows = QString::fromUtf8(fileContent(u"expected.tsv"_s))
                                 .split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    ASSERT_GT(rows.size(), 1);
    QStringList listed;
    for (const QString &row : rows.mid(1)) {
        const QStringList f = row.split(QLatin1Char('\t'));
        SCOPED_TRACE(f.first().toStdString());
        listed.append(f.first());
        QString error;
        const auto info
            = TypeLibReader::readFile(dataDir() + QLatin1Char('/') + f.first(), 0, &error);
        if (f.value(1) == u"none"_s) {
            EXPECT_FALSE(info.has_value());
            EXPECT_FALSE(error.isEmpty());
            continue;
        }
        ASSERT_EQ(f.size(), 5);
        ASSERT_TRUE(info.has_value()) << error.toStdString();
        EXPECT_EQ(info->guid, f[1]);
        EXPECT_EQ(info->majorVersion, f[2].toUShort());
        EXPECT_EQ(info->minorVersion, f[3].toUShort());
        EXPECT_EQ(info->helpString, f[4]);
        EXPECT_EQ(info->version(), f[2] + QLatin1Char('.') + f[3]);
    }
    // Every test file is in the table.
    const QStringList files = QDir(dataDir()).entryList(QDir::Files);
    for (const QString &file : files) {
        if (file != u"README.md"_s && file != u"expected.tsv"_s) {
            EXPECT_TRUE(listed.contains(file)) << file.toStdString();
        }
    }
}

TEST(TypeLibFormats, MsftFieldsAndStrings)
{
    const auto info = TypeLibReader::readData(msft(65535, 7, "1 \x80 Caf\xE9", "Lib"));
    ASSERT_TRUE(info.has_value());
    EXPECT_EQ(info->guid, SampleGuid);
    EXPECT_EQ(info->version(), u"65535.7"_s);
    EXPECT_EQ(info->helpString, QStringLiteral(u"1 \u20AC Caf\u00E9")); // Windows-1252
    EXPECT_EQ(info->name, u"Lib"_s);
    EXPECT_EQ(info->libFlags, 0x08);
    EXPECT_EQ(info->format, TypeLibInfo::Format::Msft);
    EXPECT_EQ(TypeLibReader::readData(msft(1, 0, "Caf\xC3\xA9", "L"))->helpString,
              QStringLiteral(u"Caf\u00E9")); // UTF-8
    EXPECT_EQ(TypeLibReader::readData(msft(1, 0, QByteArray(), "L"))->helpString, QString());

    // No GUID, a huge type count, a help string outside the data.
    for (const auto &[offset, value] : {std::pair(0x08, 0xFFFFFFFFu),
                                        std::pair(0x20, 0x7FFFFFFFu),
                                        std::pair(0x24, 0x7FFFFFFEu)}) {
        QByteArray damaged = msft(1, 0, "x", "L");
        putU32(damaged, offset, value);
        QString error;
        EXPECT_FALSE(TypeLibReader::readData(damaged, 0, &error).has_value()) << offset;
        EXPECT_FALSE(error.isEmpty());
    }
}

TEST(TypeLibFormats, SltgLibraryBlock)
{
    const auto info = TypeLibReader::readData(sltg(4, 2, "Old style"));
    ASSERT_TRUE(info.has_value());
    EXPECT_EQ(info->guid, SampleGuid);
    EXPECT_EQ(info->version(), u"4.2"_s);
    EXPECT_EQ(info->helpString, u"Old style"_s);
    EXPECT_EQ(info->lcid, 0x409u);
    EXPECT_EQ(info->format, TypeLibInfo::Format::Sltg);

    QByteArray looped = sltg(4, 2, "x");
    putU16(looped, SltgLibraryEntryNext, 1);
    EXPECT_FALSE(TypeLibReader::readData(looped).has_value());
    EXPECT_FALSE(TypeLibReader::readData(QByteArray("SLTG")).has_value());
}

TEST(TypeLibPeFiles, Pe32AndPe64ResourcesById)
{
    for (const bool pe64 : {false, true}) {
        SCOPED_TRACE(pe64);
        const QByteArray file = pe(pe64, {{2, msft(2, 0, "two", "A")}, {5, sltg(5, 1, "five")}});
        EXPECT_EQ(resourceIds(TypeLibReader::listData(file)), QList<int>({2, 5}));
        EXPECT_EQ(TypeLibReader::readData(file)->helpString, u"two"_s);
        EXPECT_EQ(TypeLibReader::readData(file, 5)->version(), u"5.1"_s);
        EXPECT_FALSE(TypeLibReader::readData(file, 1).has_value());
    }
}

TEST(TypeLibPeFiles, HostileDirectoriesGiveNoLibrary)
{
    const QList<Resource> two = {{1, msft(1, 0, "one", "A")}, {2, msft(2, 0, "two", "B")}};
    const QByteArray good = pe(false, two);
    auto patched = [&](qint64 offset, quint32 value) {
        QByteArray file = good;
        putU32(file, offset, value);
        return file;
    };
    // The type's directory is the root again; a resource's language directory is its parent.
    EXPECT_TRUE(TypeLibReader::listData(patched(PeRootEntry + 4, 0x80000000u)).isEmpty());
    EXPECT_EQ(resourceIds(TypeLibReader::listData(patched(PeTypeDirectory + 20, 0x80000018u))),
              QList<int>({2}));
    // Counts far beyond the data.
    EXPECT_FALSE(TypeLibReader::readData(patched(PeRoot + 12, 0xFFFFFFFF)).has_value());
    // A resource outside every section, or longer than the file, is skipped.
    const QByteArray outside = patched(peDataEntry(2, 0), 0x9000);
    EXPECT_EQ(resourceIds(TypeLibReader::listData(outside)), QList<int>({2}));
    EXPECT_FALSE(TypeLibReader::readData(outside, 1).has_value());
    EXPECT_FALSE(
        TypeLibReader::readData(patched(peDataEntry(2, 1) + 4, 0xFFFFFFF0), 2).has_value());
    // Headers pointing past the end.
    EXPECT_FALSE(TypeLibReader::readData(patched(0x3C, 0xFFFFFFF0)).has_value());
    EXPECT_FALSE(TypeLibReader::readData(good.left(PeRoot + 20)).has_value());
}
