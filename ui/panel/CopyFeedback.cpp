#include "ui/panel/CopyFeedback.h"

#include <QCoreApplication>
#include <QPointer>
#include <QTimer>

#include <utility>

namespace tambrelle {

CopyFeedback::CopyFeedback(Later later, QObject* parent) : QObject(parent), later(std::move(later)) {}

void CopyFeedback::copied() {
    set(true);
    later(duration, [self = QPointer(this)] {
        if (self)
            self->set(false);
    });
}

void CopyFeedback::set(bool showing) {
    if (showing == isShowing)
        return;
    isShowing = showing;
    emit changed(showing);
}

Later eventLoopLater() {
    return [](std::chrono::milliseconds delay, std::function<void()> action) {
        QTimer::singleShot(delay, Qt::PreciseTimer, qApp, std::move(action));
    };
}

} // namespace tambrelle
