#pragma once

#include "app/ObservableObject.h"
#include "app/Published.h"

namespace tambrelle {

class AudioPlayer;
class ResourceBundle;
class SystemSound;
class UserDefaults;

/// What the chime needs of the desktop.
struct SoundServices {
    UserDefaults& defaults;
    const ResourceBundle& resources;
    AudioPlayer& audioPlayer;
    SystemSound& systemSound;
};

/// Plays the chime of the decimal hours and keeps the user's choice whether it sounds. Chimes are on from the
/// first launch until the user switches them off.
class SoundManager final : public ObservableObject {
    Q_OBJECT

public:
    explicit SoundManager(const SoundServices& services);

    /// Whether chimes sound.
    [[nodiscard]] bool soundEnabled() const { return enabled.get(); }
    /// Announces the change, then stores it.
    void setSoundEnabled(bool value);

    /// Plays the chime when chimes are enabled: the shipped recording, or the desktop's alert when there is
    /// none.
    void playHourChime();

private:
    void play(const QString& file);

    SoundServices services;
    Published<bool> enabled;
};

} // namespace tambrelle
