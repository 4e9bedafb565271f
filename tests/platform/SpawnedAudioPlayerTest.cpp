#include "platform/freedesktop/sound/SpawnedAudioPlayer.h"

#include "tests/support/EventLoop.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <csignal>

using namespace tambrelle;
using namespace std::chrono_literals;

namespace {

/// A shell script in the place of the player. It finds its folder in $0.
class SpawnedAudioPlayerTest : public testing::Test {
protected:
    QString script(const QByteArray& text) {
        QFile file(folder.filePath(QStringLiteral("player")));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("#!/bin/sh\ncd \"${0%/*}\"\n" + text);
        file.close();
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        return file.fileName();
    }

    [[nodiscard]] QByteArray content(const QString& name) const {
        QFile file(folder.filePath(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    /// Of the player of this file, once it runs.
    [[nodiscard]] pid_t processOf(const QString& file) const {
        EXPECT_TRUE(test::waitUntil([&] { return !content(file).isEmpty(); }));
        return content(file).trimmed().toInt();
    }

    AudioPlayer::Failure remember() {
        return [this](const QString& error) { errors.push_back(error); };
    }

    QTemporaryDir folder;
    std::vector<QString> errors;
};

/// Leaves its number under the file's name, and begins with a long sound.
constexpr const char* playing = "echo $$ >\"$2.new\"; mv \"$2.new\" \"$2\"; echo playing; exec sleep 60";

/// Whether a process is there, as a zombie too.
bool exists(pid_t process) {
    return process > 0 && ::kill(process, 0) == 0;
}

} // namespace

TEST_F(SpawnedAudioPlayerTest, HandsTheVolumeAndTheFileDown) {
    SpawnedAudioPlayer player(script("printf '%s|%s' \"$1\" \"$2\" >said.new; mv said.new said"));
    player.play(QStringLiteral("/tmp/a file.mp3"), 0.6, remember());
    EXPECT_TRUE(test::waitUntil([&] { return content("said") == "0.6|/tmp/a file.mp3"; }));
}

TEST_F(SpawnedAudioPlayerTest, TellsTheReasonOfAFailureLater) {
    SpawnedAudioPlayer player(script("echo 'a.mp3: no sound' >&2; exit 1"));
    player.play(QStringLiteral("a.mp3"), 0.6, remember());
    EXPECT_TRUE(errors.empty());
    EXPECT_TRUE(test::waitUntil([&] { return !errors.empty(); }));
    EXPECT_EQ(errors, std::vector<QString>{"a.mp3: no sound"});
}

TEST_F(SpawnedAudioPlayerTest, TellsThatThePlayerIsMissing) {
    SpawnedAudioPlayer player(folder.filePath(QStringLiteral("nowhere")));
    player.play(QStringLiteral("a.mp3"), 0.6, remember());
    EXPECT_TRUE(errors.empty());
    EXPECT_TRUE(test::waitUntil([&] { return !errors.empty(); }));
    EXPECT_FALSE(errors.front().isEmpty());
}

TEST_F(SpawnedAudioPlayerTest, TellsThatThePlayerDied) {
    SpawnedAudioPlayer player(script("kill -SEGV $$"));
    player.play(QStringLiteral("a.mp3"), 0.6, remember());
    EXPECT_TRUE(test::waitUntil([&] { return errors.size() == 1; }));
}

TEST_F(SpawnedAudioPlayerTest, TellsOfEveryStatusButSuccess) {
    for (const char* const end : {"exit 2", "exit 127"}) {
        errors.clear();
        SpawnedAudioPlayer player(script(end));
        player.play(QStringLiteral("a.mp3"), 0.6, remember());
        EXPECT_TRUE(test::waitUntil([&] { return player.children().isEmpty(); }));
        EXPECT_EQ(errors.size(), 1U) << end;
    }
}

TEST_F(SpawnedAudioPlayerTest, TellsOfEachSoundThatItFailed) {
    SpawnedAudioPlayer player(folder.filePath(QStringLiteral("nowhere")));
    player.play(QStringLiteral("a.mp3"), 0.6, remember());
    player.play(QStringLiteral("b.mp3"), 0.6, remember());
    EXPECT_TRUE(test::waitUntil([&] { return player.children().isEmpty(); })) << "a process is left over";
    EXPECT_EQ(errors.size(), 2U);
}

TEST_F(SpawnedAudioPlayerTest, SaysNothingWhenTheSoundHasPlayed) {
    SpawnedAudioPlayer player(script("echo chatter >&2; : >done"));
    player.play(QStringLiteral("a.mp3"), 0.6, remember());
    EXPECT_TRUE(test::waitUntil([&] { return player.children().isEmpty(); }));
    EXPECT_TRUE(QFile::exists(folder.filePath(QStringLiteral("done"))));
    EXPECT_TRUE(errors.empty());
}

TEST_F(SpawnedAudioPlayerTest, DoesNotWaitForAPlayerThatHangs) {
    SpawnedAudioPlayer player(script("exec sleep 60"));
    QElapsedTimer time;
    time.start();
    player.play(QStringLiteral("a.mp3"), 0.6, remember());
    player.play(QStringLiteral("b.mp3"), 0.6, remember());
    EXPECT_LT(time.elapsed(), 2000);
}

TEST_F(SpawnedAudioPlayerTest, LetsTheLastSoundReplaceTheOneThatPlays) {
    SpawnedAudioPlayer player(script(playing));
    player.play(QStringLiteral("first"), 0.6, remember());
    const pid_t first = processOf("first");
    ASSERT_TRUE(exists(first));
    player.play(QStringLiteral("second"), 0.6, remember());
    EXPECT_TRUE(test::waitUntil([&] { return !exists(first); }));
    EXPECT_TRUE(exists(processOf("second")));
    EXPECT_TRUE(errors.empty());
    EXPECT_TRUE(test::waitUntil([&] { return player.children().size() == 1; }));
}

TEST_F(SpawnedAudioPlayerTest, LetsASoundPlayOnWhereTheNextCannotBeOpened) {
    SpawnedAudioPlayer player(script(QByteArray("[ \"$2\" = damaged ] && exit 1\n") + playing));
    player.play(QStringLiteral("first"), 0.6, remember());
    const pid_t first = processOf("first");
    player.play(QStringLiteral("damaged"), 0.6, remember());
    EXPECT_TRUE(test::waitUntil([&] { return errors.size() == 1; }));
    EXPECT_TRUE(test::waitUntil([&] { return player.children().size() == 1; }));
    EXPECT_TRUE(exists(first));
}

TEST_F(SpawnedAudioPlayerTest, ASoundThatIsSlowToOpenDoesNotReplaceALaterOne) {
    SpawnedAudioPlayer player(
        script(QByteArray("[ \"$2\" = damaged ] && exit 1\n"
                          "[ \"$2\" = slow ] && trap '' TERM\n"
                          "[ \"$2\" = quick ] || until [ -e late ]; do sleep 0.05; done\n"
                          "[ \"$2\" = slow ] && echo playing && exit\n") +
               playing));
    player.play(QStringLiteral("slow"), 0.6, remember());
    player.play(QStringLiteral("quick"), 0.6, remember());
    const pid_t quick = processOf("quick");
    QFile late(folder.filePath(QStringLiteral("late")));
    ASSERT_TRUE(late.open(QIODevice::WriteOnly));
    EXPECT_TRUE(test::waitUntil([&] { return player.children().size() == 1; }));
    // Time enough for a wrong end of the quick one to be noticed.
    player.play(QStringLiteral("damaged"), 0.6, remember());
    EXPECT_TRUE(test::waitUntil([&] { return errors.size() == 1; }));
    EXPECT_TRUE(exists(quick));
}

TEST_F(SpawnedAudioPlayerTest, SilencesTheSoundAtItsEnd) {
    pid_t process = 0;
    {
        SpawnedAudioPlayer player(script(playing));
        player.play(QStringLiteral("first"), 0.6, remember());
        process = processOf("first");
        ASSERT_TRUE(exists(process));
    }
    EXPECT_FALSE(exists(process));
    EXPECT_TRUE(errors.empty());
}
