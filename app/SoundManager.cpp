#include "app/SoundManager.h"

#include "app/PreferenceKeys.h"
#include "platform/AudioPlayer.h"
#include "platform/ResourceBundle.h"
#include "platform/SystemSound.h"
#include "platform/UserDefaults.h"

#include <array>
#include <cstdio>

namespace tambrelle {

namespace {

/// Loud enough to be noticed, soft enough for an office; a share of the recording's own level.
constexpr double chimeVolume = 0.6;

/// In the order of preference.
constexpr std::array chimeFiles{"marseillaise.mp3", "marseillaise.m4a", "marseillaise.wav"};

} // namespace

SoundManager::SoundManager(const SoundServices& services)
    : services(services), enabled(*this, services.defaults.boolean(PreferenceKeys::soundEnabled)) {
    if (services.defaults.boolean(PreferenceKeys::hasLaunchedBefore))
        return;
    setSoundEnabled(PreferenceKeys::soundEnabledAtFirstLaunch);
    services.defaults.setBoolean(PreferenceKeys::hasLaunchedBefore, true);
}

void SoundManager::setSoundEnabled(bool value) {
    enabled = value;
    services.defaults.setBoolean(PreferenceKeys::soundEnabled, value);
}

void SoundManager::playHourChime() {
    if (!soundEnabled())
        return;
    for (const char* name : chimeFiles) {
        if (const auto file = services.resources.file(QString::fromLatin1(name))) {
            play(*file);
            return;
        }
    }
    services.systemSound.beep();
}

void SoundManager::play(const QString& file) {
    // The alert outlives this object: it belongs to the platform, which is torn down after the managers.
    services.audioPlayer.play(file, chimeVolume, [&alert = services.systemSound](const QString& error) {
        std::printf("Failed to play sound: %s\n", qUtf8Printable(error));
        std::fflush(stdout);
        alert.beep();
    });
}

} // namespace tambrelle
