#pragma once

#include <QString>

#include <functional>

namespace tambrelle {

/// Plays one sound file at a time, without making its caller wait.
class AudioPlayer {
public:
    /// Called at most once, on the main thread, with the reason why the file could not be opened or decoded.
    using Failure = std::function<void(const QString& error)>;

    virtual ~AudioPlayer() = default;

    /// Starts to play `file` (mp3, m4a or wav) at `volume` (0 to 1 of the file's own level). A sound that
    /// still plays gives way to it as soon as the file has been opened.
    virtual void play(const QString& file, double volume, Failure onFailure) = 0;
};

} // namespace tambrelle
