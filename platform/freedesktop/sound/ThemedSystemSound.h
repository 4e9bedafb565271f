#pragma once

#include "platform/SystemSound.h"
#include "platform/freedesktop/sound/SpawnedAudioPlayer.h"

namespace tambrelle {

/// The "bell" of the desktop's sound theme; the display's own bell where the theme has none or it can't be
/// played.
class ThemedSystemSound final : public SystemSound {
public:
    ThemedSystemSound();

    void beep() override;

private:
    SpawnedAudioPlayer player;
};

} // namespace tambrelle
