#include "platform/freedesktop/FolderWatch.h"

#include "platform/freedesktop/DescriptorWatch.h"

#include <QFile>

#include <sys/inotify.h>
#include <unistd.h>

namespace tambrelle {

FolderWatch::FolderWatch(const QString& folder, QObject* parent)
    : QObject(parent), descriptor(::inotify_init1(IN_CLOEXEC | IN_NONBLOCK)) {
    if (descriptor < 0)
        return;
    ::inotify_add_watch(descriptor, QFile::encodeName(folder).constData(),
                        IN_CREATE | IN_DELETE | IN_MOVE | IN_CLOSE_WRITE | IN_ONLYDIR);
    watch = std::make_unique<DescriptorWatch>(descriptor);
    connect(watch.get(), &DescriptorWatch::drained, this, &FolderWatch::changed);
}

FolderWatch::~FolderWatch() {
    watch.reset();
    if (descriptor >= 0)
        ::close(descriptor);
}

} // namespace tambrelle
