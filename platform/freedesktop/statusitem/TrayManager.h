#pragma once

#include <QAbstractNativeEventFilter>
#include <QColor>
#include <QObject>
#include <QRect>

#include <cstdint>
#include <optional>

struct xcb_connection_t;

namespace tambrelle {

/// Follows the X11 system tray, the older way in which bars take items: a window of ours docks into one of
/// the bar's. Absent where the program does not run on X11.
class TrayManager final : public QObject, private QAbstractNativeEventFilter {
    Q_OBJECT

public:
    explicit TrayManager(QObject* parent = nullptr);
    ~TrayManager() override;

    [[nodiscard]] bool isPresent() const { return manager != 0; }

    /// The colour that the bar gives for text; absent where it does not say.
    [[nodiscard]] std::optional<QColor> foreground() const;

    /// Asks the tray to take `window`, which is not shown yet, and marks it as one that can be embedded.
    void dock(std::uint32_t window) const;
    /// Tells the tray that the docked `window` has been shown.
    void announceShown(std::uint32_t window) const;

    /// The size that the bar has given to `window`, in device pixels; absent while the window is not in a
    /// bar.
    [[nodiscard]] std::optional<QSize> grantedSize(std::uint32_t window) const;

    /// The whole bar that holds the docked `window`, in device pixels of the screen; absent when it is in
    /// none.
    [[nodiscard]] std::optional<QRect> barAround(std::uint32_t window) const;

    /// What the screen shows in the upper left corner of the docked `window`, where it draws nothing of its
    /// own; absent when it cannot be seen.
    [[nodiscard]] std::optional<QColor> groundUnder(std::uint32_t window) const;

signals:
    /// A tray has come, gone, or been replaced.
    void changed();

private:
    bool nativeEventFilter(const QByteArray& eventType, void* message, qintptr* result) override;
    void look();
    void setEmbeddingInfo(std::uint32_t window, std::uint32_t flags) const;
    void listenTo(std::uint32_t window, std::uint32_t events) const;

    xcb_connection_t* connection = nullptr;
    std::uint32_t root = 0;
    std::uint32_t selection = 0;
    std::uint32_t announcement = 0;
    std::uint32_t manager = 0;
};

} // namespace tambrelle
