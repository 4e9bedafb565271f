#pragma once

#include <QObject>

#include <chrono>
#include <functional>

namespace tambrelle {

/// Runs an action on the main thread after a delay.
using Later = std::function<void(std::chrono::milliseconds delay, std::function<void()> action)>;

/// The short word that a copy has been made.
class CopyFeedback final : public QObject {
    Q_OBJECT

public:
    static constexpr std::chrono::milliseconds duration{2000};

    explicit CopyFeedback(Later later, QObject* parent = nullptr);

    [[nodiscard]] bool showing() const { return isShowing; }

    /// Shows the feedback until `duration` from now. Each copy has a reset of its own, so a second copy does
    /// not put off the first one's.
    void copied();

signals:
    void changed(bool showing);

private:
    void set(bool showing);

    Later later;
    bool isShowing = false;
};

/// The event loop's own timer.
[[nodiscard]] Later eventLoopLater();

} // namespace tambrelle
