#pragma once

#include <QObject>

#include <thread>

namespace tambrelle {

/// Reads away what comes from a descriptor and tells of it. It waits on a thread of its own: each descriptor
/// that the event loop has to ask makes every tick dearer, and these have something to say but seldom.
class DescriptorWatch final : public QObject {
    Q_OBJECT

public:
    /// `descriptor` does not block, and outlives this object.
    explicit DescriptorWatch(int descriptor, QObject* parent = nullptr);
    ~DescriptorWatch() override;

    DescriptorWatch(const DescriptorWatch&) = delete;
    DescriptorWatch& operator=(const DescriptorWatch&) = delete;

    /// False where the system had no thread or descriptor to give: nothing will ever be told.
    [[nodiscard]] bool isWatching() const { return thread.joinable(); }

signals:
    /// Something has come; told by the event loop of the thread that this object was made on.
    void drained();

private:
    void wait(int descriptor);

    int end = -1; ///< readable once the thread is to end
    std::thread thread;
};

} // namespace tambrelle
