#include "player/Playback.h"

#include <QAudioDevice>
#include <QUrl>

namespace tambrelle {

Playback::Playback(const QString& file, float volume) {
    output.setVolume(volume);
    player.setAudioOutput(&output);
    connect(&player, &QMediaPlayer::errorOccurred, this,
            [this](QMediaPlayer::Error, const QString& text) { emit failed(text); });
    connect(&player, &QMediaPlayer::mediaStatusChanged, this, [this](QMediaPlayer::MediaStatus status) {
        if (status == QMediaPlayer::EndOfMedia)
            emit ended();
    });
    player.setSource(QUrl::fromLocalFile(file));
}

void Playback::start() {
    if (output.device().isNull()) {
        emit ended();
        return;
    }
    player.play();
}

} // namespace tambrelle
