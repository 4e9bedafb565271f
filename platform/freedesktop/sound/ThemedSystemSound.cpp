#include "platform/freedesktop/sound/ThemedSystemSound.h"

#include "platform/freedesktop/sound/SoundTheme.h"

#include <QApplication>

namespace tambrelle {

namespace {

constexpr double fullVolume = 1;

} // namespace

ThemedSystemSound::ThemedSystemSound() : player(SpawnedAudioPlayer::standardProgram()) {}

void ThemedSystemSound::beep() {
    const auto bell = SoundTheme::current().file(QStringLiteral("bell"));
    if (!bell) {
        QApplication::beep();
        return;
    }
    player.play(*bell, fullVolume, [](const QString& /*error*/) { QApplication::beep(); });
}

} // namespace tambrelle
