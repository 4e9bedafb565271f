#include "ui/Refresher.h"

#include "app/ObservableObject.h"

#include <QMetaObject>

#include <utility>

namespace tambrelle {

Refresher::Refresher(std::function<void()> refresh, QObject* parent)
    : QObject(parent), refresh(std::move(refresh)) {}

void Refresher::observe(const ObservableObject& object) {
    connect(&object, &ObservableObject::objectWillChange, this, [this, &object] {
        if (object.isInGroup())
            awaited = true;
        else
            request();
    });
    connect(&object, &ObservableObject::groupDidChange, this, [this] {
        if (awaited)
            run();
        awaited = false;
    });
}

void Refresher::setPaused(bool value) {
    if (paused == value)
        return;
    paused = value;
    request();
}

void Refresher::request() {
    if (paused || requested)
        return;
    requested = true;
    QMetaObject::invokeMethod(this, &Refresher::run, Qt::QueuedConnection);
}

[[gnu::hot]] void Refresher::run() {
    requested = false;
    if (!paused)
        refresh();
}

} // namespace tambrelle
