#pragma once

#include <QAudioDecoder>
#include <QAudioFormat>
#include <QByteArray>
#include <QMediaPlayer>
#include <QObject>
#include <QTimer>

namespace tambrelle {

/// Decodes a file from end to end before a sound is heard, so that a damaged one is known in time.
class SoundDecoding : public QObject {
    Q_OBJECT

public:
    explicit SoundDecoding(const QString& file);

    /// What the samples are decoded to: signed 16-bit, two channels, 44100 Hz.
    static QAudioFormat format();

    /// Ends in one of the two signals.
    void start();

signals:
    /// All samples, in `format()`.
    void decoded(const QByteArray& samples);
    void failed(const QString& reason);

private:
    void finish(const QString& reason);
    void opened(QMediaPlayer::MediaStatus status);
    void collect();
    void judge();

    QString file;
    QMediaPlayer opener; // says what the decoder keeps to itself: why a file can't be opened, and its length
    QAudioDecoder decoder;
    QTimer stall;
    QByteArray samples;
    bool finished = false;
};

} // namespace tambrelle
