#pragma once

#include "ui/Refresher.h"
#include "ui/panel/CopyFeedback.h"
#include "ui/panel/PanelSnapshot.h"

#include <QWidget>

#include <optional>

namespace tambrelle {

class Clock;
class ContrastPreference;
class DailyItemSection;
class Divider;
class FocusRing;
class FooterSection;
class GuillotineSection;
class HeaderSection;
class NavigationBar;
class OnThisDaySection;
class ResourceBundle;
class TimeSection;

/// What the panel reads and what its controls work on.
struct PanelServices {
    CalendarManager& manager;
    SoundManager& sound;
    const Clock& clock;
    const ResourceBundle& resources;
    const ContrastPreference& contrast;
    Later later = eventLoopLater();
};

/// The panel: the viewed day from top to bottom. It has its whole size from its content and follows it; where
/// the room is less, the picture gives way, down to its least height.
class MenuBarView final : public QWidget {
    Q_OBJECT

public:
    explicit MenuBarView(const PanelServices& services, QWidget* parent = nullptr);

    /// Shows the present state; does nothing to what has not changed. Runs by itself while the panel is
    /// visible.
    void refresh();

    /// Shows this content; what equals the content on show is not touched.
    void present(const PanelSnapshot& snapshot);

    /// How tall the panel may be, in logical pixels; without limit until it is told.
    void setRoom(int height);

    [[nodiscard]] QSize sizeHint() const override;

    /// How tall it is with the picture at its least height, logical pixels.
    [[nodiscard]] int leastHeight() const;

signals:
    void settingsRequested();
    void quitRequested();
    /// The content is taller or shorter than before.
    void heightChanged();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void connectControls();
    void applyInks();
    void fitHeight();
    void copyToClipboard();
    void chime(bool test);

    PanelServices services;
    Refresher refresher;
    CopyFeedback feedback;
    std::optional<PanelSnapshot> shown;
    int room = QWIDGETSIZE_MAX;

    NavigationBar* navigation;
    HeaderSection* header;
    TimeSection* time;
    DailyItemSection* dailyItem;
    Divider* afterDailyItem;
    OnThisDaySection* onThisDay;
    Divider* afterOnThisDay;
    GuillotineSection* guillotine;
    FooterSection* footer;
    FocusRing* focusRing;
};

} // namespace tambrelle
