#pragma once

#include <QObject>

#include <thread>

namespace tambrelle {

/// Reads away what comes from a descriptor and tells of it. It waits on a thread of its own: each descriptor
/// that the event loop has to ask makes every tick dearer, and these have something to say once in a year.
class DescriptorWatch final : public QObject {
    Q_OBJECT

public:
    /// `descriptor` does not block, and outlives this object. Where the system has no thread or descriptor to
    /// give, nothing is ever told.
    explicit DescriptorWatch(int descriptor, QObject* parent = nullptr);
    ~DescriptorWatch() override;

    DescriptorWatch(const DescriptorWatch&) = delete;
    DescriptorWatch& operator=(const DescriptorWatch&) = delete;

signals:
    /// Something has come; told on this object's own thread.
    void drained();

private:
    void wait(int descriptor);

    int end = -1; ///< readable once the thread is to end
    std::thread thread;
};

} // namespace tambrelle
