#pragma once

#include "platform/AudioPlayer.h"

#include <QObject>

#include <cstdint>
#include <optional>
#include <utility>
#include <vector>

namespace tambrelle::fakes {

/// Records what it is asked to play. Like the real one it tells of a failure later: with the event loop's
/// next turn where `error` is set, or when told to. A sound that has given way to another fails no more.
class FakeAudioPlayer final : public AudioPlayer {
public:
    struct Played {
        QString file;
        double volume;

        bool operator==(const Played&) const = default;
    };

    void play(const QString& file, double volume, Failure onFailure) override {
        played.push_back({file, volume});
        lastFailure = std::move(onFailure);
        const auto sound = ++sounds;
        if (!error)
            return;
        const auto fail = [this, sound, reason = *error] {
            if (sound == sounds)
                failLast(reason);
        };
        QMetaObject::invokeMethod(&context, fail, Qt::QueuedConnection);
    }

    /// The sound that was started last turns out to be unplayable.
    void failLast(const QString& reason) {
        if (lastFailure)
            std::exchange(lastFailure, nullptr)(reason);
    }

    std::vector<Played> played;
    std::optional<QString> error;

private:
    Failure lastFailure;
    std::int64_t sounds = 0;
    QObject context;
};

} // namespace tambrelle::fakes
