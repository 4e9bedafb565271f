#include "platform/freedesktop/FolderWatch.h"

#include <QFile>
#include <QSocketNotifier>

#include <array>
#include <sys/inotify.h>
#include <unistd.h>

namespace tambrelle {

FolderWatch::FolderWatch(const QString& folder, QObject* parent)
    : QObject(parent), descriptor(::inotify_init1(IN_CLOEXEC | IN_NONBLOCK)) {
    if (descriptor < 0)
        return;
    ::inotify_add_watch(descriptor, QFile::encodeName(folder).constData(),
                        IN_CREATE | IN_DELETE | IN_MOVE | IN_CLOSE_WRITE | IN_ONLYDIR);
    const auto* notifier = new QSocketNotifier(descriptor, QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, [this] {
        drain();
        emit changed();
    });
}

FolderWatch::~FolderWatch() {
    // Before its descriptor is gone.
    delete findChild<QSocketNotifier*>();
    if (descriptor >= 0)
        ::close(descriptor);
}

void FolderWatch::drain() const {
    std::array<char, 4096> events{};
    while (::read(descriptor, events.data(), events.size()) > 0) {
    }
}

} // namespace tambrelle
