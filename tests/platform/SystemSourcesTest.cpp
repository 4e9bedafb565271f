#include "platform/freedesktop/FolderWatch.h"
#include "platform/freedesktop/SystemClock.h"
#include "platform/freedesktop/SystemRandomSource.h"
#include "tests/support/EventLoop.h"

#include <QFile>
#include <QTemporaryDir>

#include <chrono>
#include <cstdint>
#include <gtest/gtest.h>
#include <set>
#include <utility>

namespace tambrelle {
namespace {

TEST(SystemClockTest, ShowsTheSystemsTimeInMicroseconds) {
    const auto before = std::chrono::floor<Instant::duration>(std::chrono::system_clock::now());
    const Instant now = SystemClock().now();
    const auto after = std::chrono::floor<Instant::duration>(std::chrono::system_clock::now());
    EXPECT_LE(before, now);
    EXPECT_LE(now, after);
}

TEST(SystemClockTest, TellsOneGenerationOfTheZoneFromTheNext) {
    const QTemporaryDir folder;
    const SystemClock clock(folder.path());
    const auto first = clock.zoneGeneration();
    ASSERT_TRUE(first.has_value());
    EXPECT_EQ(clock.zoneGeneration(), first);

    // As the system's tools do: a new link takes the place of the former.
    ASSERT_TRUE(QFile::link(QStringLiteral("/usr/share/zoneinfo/Asia/Tokyo"),
                            folder.filePath(QStringLiteral("localtime"))));
    EXPECT_TRUE(test::waitUntil([&] { return clock.zoneGeneration() != first; }, std::chrono::seconds{2}));
}

TEST(SystemClockTest, TellsWhenTheLinksTargetIsAnotherFile) {
    const QTemporaryDir folder;
    const QTemporaryDir elsewhere;
    const QString target = elsewhere.filePath(QStringLiteral("zone"));
    ASSERT_TRUE(QFile::copy(QStringLiteral("/usr/share/zoneinfo/Asia/Tokyo"), target));
    ASSERT_TRUE(QFile::link(target, folder.filePath(QStringLiteral("localtime"))));
    const SystemClock lazy(folder.path(), std::chrono::hours{1});
    const SystemClock clock(folder.path(), std::chrono::seconds{0});
    const auto firstOfLazy = (void(lazy.now()), lazy.zoneGeneration());
    const auto first = clock.zoneGeneration();
    EXPECT_EQ(clock.zoneGeneration(), first);

    // As an upgrade of the zones does.
    const QString upgraded = elsewhere.filePath(QStringLiteral("upgraded"));
    ASSERT_TRUE(QFile::copy(QStringLiteral("/usr/share/zoneinfo/Asia/Seoul"), upgraded));
    ASSERT_TRUE(QFile::remove(target) && QFile::rename(upgraded, target));
    const auto second = clock.zoneGeneration();
    EXPECT_NE(second, first);
    EXPECT_EQ(clock.zoneGeneration(), second);
    EXPECT_EQ(lazy.zoneGeneration(), firstOfLazy) << "not yet time for another look";
}

TEST(FolderWatchTest, TellsWhatComesIsWrittenMovesAndGoes) {
    const QTemporaryDir folder;
    const FolderWatch watch(folder.path());
    int told = 0;
    QObject::connect(&watch, &FolderWatch::changed, &watch, [&told] { ++told; });
    const auto isTold = [&told] { return test::waitUntil([&told] { return std::exchange(told, 0) > 0; }); };
    test::runQueued();
    EXPECT_EQ(told, 0);

    QFile file(folder.filePath(QStringLiteral("localtime")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    EXPECT_TRUE(isTold()) << "comes";
    file.write("TZif");
    file.close();
    EXPECT_TRUE(isTold()) << "is written";
    ASSERT_TRUE(file.rename(folder.filePath(QStringLiteral("other"))));
    EXPECT_TRUE(isTold()) << "moves";
    ASSERT_TRUE(file.remove());
    EXPECT_TRUE(isTold()) << "goes";
    test::runQueued();
    EXPECT_EQ(told, 0);
}

TEST(FolderWatchTest, IsSilentWhereThereIsNoFolder) {
    const FolderWatch watch(QStringLiteral("/nonexistent"));
    int told = 0;
    QObject::connect(&watch, &FolderWatch::changed, &watch, [&told] { ++told; });
    test::runQueued();
    EXPECT_EQ(told, 0);
}

TEST(SystemRandomSourceTest, WordsDifferAndEveryBitIsDrawnBothWays) {
    SystemRandomSource source;
    std::set<std::uint64_t> words;
    std::uint64_t everSet = 0;
    std::uint64_t everClear = 0;
    for (int draw = 0; draw < 256; ++draw) {
        const std::uint64_t word = source.next();
        words.insert(word);
        everSet |= word;
        everClear |= ~word;
    }
    EXPECT_EQ(words.size(), 256U) << "the odds against are 2^49 to 1";
    EXPECT_EQ(everSet, UINT64_MAX);
    EXPECT_EQ(everClear, UINT64_MAX);
}

} // namespace
} // namespace tambrelle
