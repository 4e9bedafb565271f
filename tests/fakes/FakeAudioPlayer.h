#pragma once

#include "platform/AudioPlayer.h"

#include <optional>
#include <utility>
#include <vector>

namespace tambrelle::fakes {

/// Records what it is asked to play. Fails at once where `error` is set, or later when told to.
class FakeAudioPlayer final : public AudioPlayer {
public:
    struct Played {
        QString file;
        double volume;

        bool operator==(const Played&) const = default;
    };

    void play(const QString& file, double volume, Failure onFailure) override {
        played.push_back({file, volume});
        if (error)
            onFailure(*error);
        else
            lastFailure = std::move(onFailure);
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
};

} // namespace tambrelle::fakes
