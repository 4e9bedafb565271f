#include "player/Playback.h"

#include <QAudioDevice>
#include <QMediaDevices>
#include <QTimer>

#include <chrono>

namespace tambrelle {

namespace {

constexpr std::chrono::milliseconds farewell{300};

} // namespace

Playback::Playback(const QByteArray& samples, const QAudioFormat& format, double volume)
    : samples(samples), source(&this->samples), sink(QMediaDevices::defaultAudioOutput(), format) {
    source.open(QIODevice::ReadOnly);
    sink.setVolume(volume);
    connect(&sink, &QAudioSink::stateChanged, this, &Playback::changed);
}

void Playback::start() {
    if (QMediaDevices::defaultAudioOutput().isNull())
        emit ended();
    else
        sink.start(&source);
}

void Playback::stop() {
    disconnect(&sink, nullptr, this, nullptr);
    sink.stop();
    // A server may still be handing the last samples to others, in memory that goes when this process does.
    QTimer::singleShot(farewell, this, &Playback::ended);
}

void Playback::changed(QAudio::State state) {
    if (state == QAudio::IdleState && source.atEnd()) {
        // The sink has handed everything over; the server has its buffer still to play.
        const std::chrono::microseconds rest(
            sink.format().durationForBytes(static_cast<qint32>(sink.bufferSize())));
        QTimer::singleShot(std::chrono::ceil<std::chrono::milliseconds>(rest), this, &Playback::stop);
    } else if (state == QAudio::StoppedState) {
        emit ended();
    }
}

} // namespace tambrelle
