#pragma once

#include <QObject>

#include <functional>

namespace tambrelle {

class ObservableObject;

/// Turns the announcements of observed objects into one refresh, however many values changed meanwhile: at
/// the end of a group of changes, else on the next turn of the event loop. While paused, for a view that
/// nobody sees, it does nothing at all.
class Refresher final : public QObject {
    Q_OBJECT

public:
    explicit Refresher(std::function<void()> refresh, QObject* parent = nullptr);

    void observe(const ObservableObject& object);

    /// Resuming asks for one refresh, since anything may have changed.
    void setPaused(bool paused);

private:
    void request();
    void run();

    std::function<void()> refresh;
    bool requested = false;
    bool awaited = false; ///< a refresh at the end of the group under way
    bool paused = false;
};

} // namespace tambrelle
