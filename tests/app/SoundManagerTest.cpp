#include "app/SoundManager.h"

#include "app/PreferenceKeys.h"
#include "tests/fakes/FakePlatform.h"
#include "tests/support/EventLoop.h"

#include <gtest/gtest.h>
#include <memory>
#include <vector>

namespace tambrelle {
namespace {

using Played = fakes::FakeAudioPlayer::Played;
using Write = fakes::FakeUserDefaults::Write;

class SoundManagerTest : public ::testing::Test {
protected:
    SoundManager& launch() {
        manager = std::make_unique<SoundManager>(
            SoundServices{platform.defaults, platform.resources, platform.audioPlayer, platform.systemSound});
        return *manager;
    }
    SoundManager& launchEnabled() {
        platform.defaults.values.insert(PreferenceKeys::hasLaunchedBefore, true);
        platform.defaults.values.insert(PreferenceKeys::soundEnabled, true);
        return launch();
    }

    fakes::FakePlatform platform;
    std::unique_ptr<SoundManager> manager;
};

TEST_F(SoundManagerTest, FirstLaunchSwitchesChimesOnAndStoresIt) {
    EXPECT_TRUE(launch().soundEnabled());
    EXPECT_EQ(platform.defaults.values.value(PreferenceKeys::soundEnabled), QVariant(true));
    EXPECT_EQ(platform.defaults.values.value(PreferenceKeys::hasLaunchedBefore), QVariant(true));
    EXPECT_EQ(platform.defaults.values.size(), 2);
    EXPECT_TRUE(platform.audioPlayer.played.empty());
}

TEST_F(SoundManagerTest, FirstLaunchOverrulesAStoredFalse) {
    platform.defaults.values.insert(PreferenceKeys::soundEnabled, false);
    EXPECT_TRUE(launch().soundEnabled());
    EXPECT_EQ(platform.defaults.values.value(PreferenceKeys::soundEnabled), QVariant(true));
}

TEST_F(SoundManagerTest, LaterLaunchKeepsTheUsersChoice) {
    launch().setSoundEnabled(false);
    EXPECT_FALSE(launch().soundEnabled());
    manager->setSoundEnabled(true);
    EXPECT_TRUE(launch().soundEnabled());
}

TEST_F(SoundManagerTest, LaterLaunchWritesNothing) {
    launchEnabled();
    EXPECT_TRUE(platform.defaults.writes.empty());
}

TEST_F(SoundManagerTest, MissingValueOfALaterLaunchIsOff) {
    platform.defaults.values.insert(PreferenceKeys::hasLaunchedBefore, true);
    EXPECT_FALSE(launch().soundEnabled());
    EXPECT_TRUE(platform.defaults.writes.empty());
}

TEST_F(SoundManagerTest, EveryAssignmentIsAnnouncedBeforeAndThenStored) {
    launchEnabled();
    std::vector<bool> seen;
    QObject context;
    QObject::connect(manager.get(), &ObservableObject::objectWillChange, &context,
                     [&] { seen.push_back(manager->soundEnabled()); });
    manager->setSoundEnabled(false);
    manager->setSoundEnabled(false);
    EXPECT_EQ(seen, (std::vector{true, false}));
    EXPECT_EQ(platform.defaults.writes, (std::vector<Write>{{PreferenceKeys::soundEnabled, false},
                                                            {PreferenceKeys::soundEnabled, false}}));
}

TEST_F(SoundManagerTest, PlaysTheRecordingAtItsVolume) {
    platform.resources.add(QStringLiteral("marseillaise.mp3"));
    launchEnabled().playHourChime();
    EXPECT_EQ(platform.audioPlayer.played,
              (std::vector<Played>{{QStringLiteral("/resources/marseillaise.mp3"), 0.6}}));
    EXPECT_EQ(platform.systemSound.beeps, 0);
}

TEST_F(SoundManagerTest, LooksForMp3ThenM4aThenWav) {
    platform.resources.add(QStringLiteral("marseillaise.wav"));
    launchEnabled().playHourChime();
    EXPECT_EQ(platform.resources.lookedUp,
              (QStringList{QStringLiteral("marseillaise.mp3"), QStringLiteral("marseillaise.m4a"),
                           QStringLiteral("marseillaise.wav")}));
    platform.resources.add(QStringLiteral("marseillaise.m4a"));
    manager->playHourChime();
    platform.resources.add(QStringLiteral("marseillaise.mp3"));
    manager->playHourChime();
    EXPECT_EQ(platform.audioPlayer.played,
              (std::vector<Played>{{QStringLiteral("/resources/marseillaise.wav"), 0.6},
                                   {QStringLiteral("/resources/marseillaise.m4a"), 0.6},
                                   {QStringLiteral("/resources/marseillaise.mp3"), 0.6}}));
}

TEST_F(SoundManagerTest, SoundsTheAlertWhereThereIsNoRecording) {
    launchEnabled().playHourChime();
    EXPECT_EQ(platform.systemSound.beeps, 1);
    EXPECT_TRUE(platform.audioPlayer.played.empty());
}

TEST_F(SoundManagerTest, DoesNothingWhenOff) {
    platform.resources.add(QStringLiteral("marseillaise.mp3"));
    launchEnabled().setSoundEnabled(false);
    manager->playHourChime();
    EXPECT_TRUE(platform.audioPlayer.played.empty());
    EXPECT_TRUE(platform.resources.lookedUp.isEmpty());
    EXPECT_EQ(platform.systemSound.beeps, 0);
}

TEST_F(SoundManagerTest, EveryFailureIsOneLineOnStandardOutputAndOneAlert) {
    platform.resources.add(QStringLiteral("marseillaise.mp3"));
    platform.audioPlayer.error = QStringLiteral("the file is empty");
    launchEnabled();
    ::testing::internal::CaptureStdout();
    for (int chime = 0; chime < 2; ++chime) {
        manager->playHourChime();
        test::runQueued();
    }
    EXPECT_EQ(::testing::internal::GetCapturedStdout(),
              "Failed to play sound: the file is empty\nFailed to play sound: the file is empty\n");
    EXPECT_EQ(platform.systemSound.beeps, 2);
}

TEST_F(SoundManagerTest, FailureThatComesLaterSoundsTheAlert) {
    platform.resources.add(QStringLiteral("marseillaise.mp3"));
    launchEnabled().playHourChime();
    EXPECT_EQ(platform.systemSound.beeps, 0);
    ::testing::internal::CaptureStdout();
    platform.audioPlayer.failLast(QStringLiteral("n'est pas décodable"));
    EXPECT_EQ(::testing::internal::GetCapturedStdout(), "Failed to play sound: n'est pas décodable\n");
    EXPECT_EQ(platform.systemSound.beeps, 1);
}

TEST_F(SoundManagerTest, FailureThatComesAfterItsEndIsHarmless) {
    platform.resources.add(QStringLiteral("marseillaise.mp3"));
    launchEnabled().playHourChime();
    manager.reset();
    ::testing::internal::CaptureStdout();
    platform.audioPlayer.failLast(QStringLiteral("gone"));
    ::testing::internal::GetCapturedStdout();
    EXPECT_EQ(platform.systemSound.beeps, 1);
}

TEST_F(SoundManagerTest, EveryChimeIsHandedOnSoThatTheLastReplacesTheOneSounding) {
    platform.resources.add(QStringLiteral("marseillaise.mp3"));
    launchEnabled();
    manager->playHourChime();
    manager->playHourChime();
    EXPECT_EQ(platform.audioPlayer.played.size(), 2U);
}

} // namespace
} // namespace tambrelle
