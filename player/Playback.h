#pragma once

#include <QAudioOutput>
#include <QMediaPlayer>
#include <QObject>

namespace tambrelle {

/// Plays a file once to the default output of the sound server.
class Playback : public QObject {
    Q_OBJECT

public:
    /// `volume` is linear, 0 to 1 of the file's own level. May block for as long as the sound server does.
    Playback(const QString& file, float volume);

    /// Ends in one of the two signals; `ended` also where there is nothing to play to.
    void start();

signals:
    void ended();
    void failed(const QString& reason);

private:
    QMediaPlayer player;
    QAudioOutput output;
};

} // namespace tambrelle
