#include "tests/support/EventLoop.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QTimer>

namespace tambrelle::test {

namespace {

/// Conditions outside this process, such as a file that appears, send no event: they are looked at this
/// often.
constexpr std::chrono::milliseconds lookInterval{5};

} // namespace

bool waitUntil(const std::function<bool()>& condition, std::chrono::milliseconds limit) {
    const QDeadlineTimer deadline(limit);
    QTimer looks;
    looks.start(lookInterval);
    while (!condition()) {
        if (deadline.hasExpired())
            return false;
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    return true;
}

void runQueued() {
    // Posted events that are posted meanwhile are sent by the same call.
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
}

} // namespace tambrelle::test
