#pragma once

#include "platform/AudioPlayer.h"

namespace tambrelle {

/// Plays nothing and says so.
class NoAudioPlayer final : public AudioPlayer {
public:
    void play(const QString& /*file*/, double /*volume*/, Failure onFailure) override {
        onFailure(QStringLiteral("this build has no sound"));
    }
};

} // namespace tambrelle
