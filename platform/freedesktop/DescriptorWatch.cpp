#include "platform/freedesktop/DescriptorWatch.h"

#include <array>
#include <cerrno>
#include <cstdint>
#include <poll.h>
#include <sys/eventfd.h>
#include <system_error>
#include <unistd.h>

namespace tambrelle {

namespace {

void drain(int descriptor) {
    std::array<char, 4096> read{};
    while (::read(descriptor, read.data(), read.size()) > 0) {
    }
}

} // namespace

DescriptorWatch::DescriptorWatch(int descriptor, QObject* parent)
    : QObject(parent), end(::eventfd(0, EFD_CLOEXEC)) {
    if (end < 0 || descriptor < 0)
        return;
    try {
        thread = std::thread([this, descriptor] { wait(descriptor); });
    } catch (const std::system_error&) {
    }
}

DescriptorWatch::~DescriptorWatch() {
    if (end < 0)
        return;
    constexpr std::uint64_t one = 1;
    [[maybe_unused]] const auto written = ::write(end, &one, sizeof one);
    if (thread.joinable())
        thread.join();
    ::close(end);
}

void DescriptorWatch::wait(int descriptor) {
    std::array<pollfd, 2> watched{
        {{.fd = descriptor, .events = POLLIN, .revents = 0}, {.fd = end, .events = POLLIN, .revents = 0}}};
    for (;;) {
        if (::poll(watched.data(), watched.size(), -1) < 0) {
            if (errno == EINTR)
                continue;
            return;
        }
        if (watched[1].revents != 0 || (watched[0].revents & POLLIN) == 0)
            return;
        drain(descriptor);
        QMetaObject::invokeMethod(this, &DescriptorWatch::drained, Qt::QueuedConnection);
    }
}

} // namespace tambrelle
