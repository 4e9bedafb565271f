#pragma once

#include <QObject>
#include <QSize>
#include <QTimer>

#include <chrono>
#include <optional>

class QWidget;

namespace tambrelle {

class TrayManager;

/// Brings one window of ours into the tray and tells what room the bar gives it.
class TrayDock final : public QObject {
    Q_OBJECT

public:
    /// `tray` and `window` outlive this object; the window is not shown yet.
    TrayDock(const TrayManager& tray, QWidget& window, QObject* parent = nullptr);

    /// Asks for a place on the first call; later ones ask only how a change came out.
    void settle();

signals:
    /// The bar has laid out its items, now or anew: the window's size there in logical pixels; absent when it
    /// was not taken.
    void settled(std::optional<QSize> granted);

protected:
    /// A bar may give the window another size at any time.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void dock();
    void lookForPlace();
    void startLooking();
    void lookAtSize();

    const TrayManager& tray;
    QWidget& window;
    QTimer place;
    QTimer layout;
    std::chrono::milliseconds waited{0}; ///< for a place
    std::optional<QSize> seen;           ///< device pixels, at the last look since the last change
    bool docked = false;
};

} // namespace tambrelle
