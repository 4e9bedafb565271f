#pragma once

#include "platform/AudioPlayer.h"

#include <QObject>

#include <deque>

class QProcess;

namespace tambrelle {

/// Plays each sound in a child process that ends with it, so that no media framework stays in this one and no
/// sound server can hold it up.
class SpawnedAudioPlayer final : public QObject, public AudioPlayer {
public:
    /// `program` is called with the volume and the file. It writes a line to standard output when it begins
    /// with the sound; it ends with another status than 0, and a line on standard error, when the file can't
    /// be opened or decoded.
    explicit SpawnedAudioPlayer(const QString& program);
    /// Silences what still plays.
    ~SpawnedAudioPlayer() override;

    /// Where the player lies: beside this program in a build tree, else in libexec under the same prefix.
    static QString standardProgram();

    void play(const QString& file, double volume, Failure onFailure) override;

private:
    void silenceBefore(const QProcess* player);
    /// Whether the player was still wanted.
    bool forget(const QProcess* player);

    QString program;
    std::deque<QProcess*> wanted; ///< neither ended nor replaced, in the order of their starts
};

} // namespace tambrelle
