#pragma once

#include <QAudioDecoder>
#include <QMediaPlayer>
#include <QObject>
#include <QTimer>

#include <chrono>

namespace tambrelle {

/// Decodes a file from end to end without a sound, so that a damaged one is known before any of it is heard.
class SoundCheck : public QObject {
    Q_OBJECT

public:
    explicit SoundCheck(const QString& file);

    /// Ends in one of the two signals.
    void start();

signals:
    void passed(std::chrono::milliseconds length);
    void failed(const QString& reason);

private:
    void finish(const QString& reason);
    void opened(QMediaPlayer::MediaStatus status);
    void decoded();
    void compareLengths();

    QString file;
    QMediaPlayer opener; // says what the decoder keeps to itself: why a file can't be opened, and its length
    QAudioDecoder decoder;
    QTimer stall;
    std::chrono::microseconds decodedLength{0};
    bool finished = false;
};

} // namespace tambrelle
