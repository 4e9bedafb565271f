#include "player/SoundDecoding.h"

#include "player/WaveHeader.h"

#include <QAudioBuffer>
#include <QFile>
#include <QFileInfo>
#include <QUrl>

#include <utility>

namespace tambrelle {

namespace {

using namespace std::chrono_literals;

/// A decoder that has given nothing for so long will give nothing more.
constexpr auto longestStall = 4s;

/// It is held in memory, 10 MB a minute.
constexpr std::chrono::microseconds longestSound = 10min;

/// What a decoded length may lack of the promised one: encoders pad, and a promise may be an estimate.
constexpr auto padding = 250ms;
constexpr double estimate = 0.05;

/// The toolkit says "could not open" of whatever it can't decode.
constexpr QLatin1String undecodable("no sound that can be decoded");

QString whyUnreadable(const QString& path) {
    if (QFileInfo(path).isDir())
        return QStringLiteral("a folder");
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return file.errorString();
    if (file.size() == 0)
        return QStringLiteral("the file is empty");
    if (promisesMoreThanFile(file.peek(16), file.size()))
        return QStringLiteral("the file is cut short");
    return {};
}

} // namespace

SoundDecoding::SoundDecoding(const QString& file) : file(file) {
    stall.setInterval(longestStall);
    stall.setSingleShot(true);
    connect(&stall, &QTimer::timeout, this, [this] { finish(QString(undecodable)); });
    connect(&opener, &QMediaPlayer::errorOccurred, this,
            [this](QMediaPlayer::Error) { finish(QString(undecodable)); });
    connect(&opener, &QMediaPlayer::mediaStatusChanged, this, &SoundDecoding::opened);
    connect(&decoder, qOverload<QAudioDecoder::Error>(&QAudioDecoder::error), this,
            [this](QAudioDecoder::Error) { finish(decoder.errorString()); });
    connect(&decoder, &QAudioDecoder::bufferReady, this, &SoundDecoding::collect);
    connect(&decoder, &QAudioDecoder::finished, this, &SoundDecoding::judge);
}

QAudioFormat SoundDecoding::format() {
    constexpr int compactDiscRate = 44100;
    QAudioFormat format;
    format.setSampleRate(compactDiscRate);
    format.setChannelConfig(QAudioFormat::ChannelConfigStereo);
    format.setSampleFormat(QAudioFormat::Int16);
    return format;
}

void SoundDecoding::start() {
    if (const QString reason = whyUnreadable(file); !reason.isEmpty()) {
        finish(reason);
        return;
    }
    stall.start();
    opener.setSource(QUrl::fromLocalFile(file));
}

void SoundDecoding::finish(const QString& reason) {
    if (std::exchange(finished, true))
        return;
    stall.stop();
    emit failed(reason.isEmpty() ? QString(undecodable) : reason);
}

void SoundDecoding::opened(QMediaPlayer::MediaStatus status) {
    if (finished || status != QMediaPlayer::LoadedMedia)
        return;
    if (!opener.hasAudio()) {
        finish(QStringLiteral("no sound in the file"));
        return;
    }
    decoder.setAudioFormat(format());
    decoder.setSource(opener.source());
    decoder.start();
}

void SoundDecoding::collect() {
    stall.start();
    while (decoder.bufferAvailable()) {
        const QAudioBuffer buffer = decoder.read();
        samples.append(buffer.constData<char>(), buffer.byteCount());
    }
    if (format().durationForBytes(static_cast<qint32>(samples.size())) > longestSound.count())
        finish(QStringLiteral("the sound is too long"));
}

void SoundDecoding::judge() {
    if (finished)
        return;
    const std::chrono::microseconds length(format().durationForBytes(static_cast<qint32>(samples.size())));
    const std::chrono::duration<double, std::milli> promised(static_cast<double>(opener.duration()));
    if (samples.isEmpty()) {
        finish(QStringLiteral("no sound in the file"));
    } else if (length + padding < promised * (1 - estimate)) {
        finish(QStringLiteral("the file is cut short"));
    } else {
        finished = true;
        stall.stop();
        emit decoded(samples);
    }
}

} // namespace tambrelle
