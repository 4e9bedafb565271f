#pragma once

#include <QAudioFormat>
#include <QAudioSink>
#include <QBuffer>
#include <QObject>

namespace tambrelle {

/// Plays samples once to the default output of the sound server.
class Playback : public QObject {
    Q_OBJECT

public:
    /// `volume` is linear, 0 to 1 of the samples' own level. May block for as long as the sound server does.
    Playback(const QByteArray& samples, const QAudioFormat& format, double volume);

    /// Ends in the signal, also where there is nothing to play to.
    void start();

    /// Falls silent and ends.
    void stop();

signals:
    void ended();

private:
    void changed(QAudio::State state);

    QByteArray samples;
    QBuffer source;
    QAudioSink sink;
};

} // namespace tambrelle
