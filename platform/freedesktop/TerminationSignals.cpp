#include "platform/freedesktop/TerminationSignals.h"

#include "platform/freedesktop/DescriptorWatch.h"

#include <array>
#include <csignal>
#include <cstdint>
#include <cstdlib>
#include <sys/eventfd.h>
#include <unistd.h>

namespace tambrelle {

namespace {

constexpr std::array taken{SIGTERM, SIGINT, SIGHUP};

/// What the handler writes to; a signal may come at any instruction, so that it does no more than that.
volatile std::sig_atomic_t counter = -1;

/// The process that the signals are to end. A child has its handlers and its counter until it becomes a
/// program of its own.
volatile std::sig_atomic_t owner = 0;

void note(int /*signal*/) {
    if (::getpid() != owner)
        ::_exit(EXIT_SUCCESS);
    constexpr std::uint64_t one = 1;
    [[maybe_unused]] const auto written = ::write(counter, &one, sizeof one);
    ::alarm(1);
}

void handle(int signal, void (*handler)(int)) {
    struct sigaction before {};
    if (::sigaction(signal, nullptr, &before) != 0 || before.sa_handler == SIG_IGN)
        return;
    struct sigaction action {};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART;
    ::sigaction(signal, &action, nullptr);
}

} // namespace

TerminationSignals::TerminationSignals(QObject* parent) : QObject(parent) {
    const int descriptor = ::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
    watch = std::make_unique<DescriptorWatch>(descriptor);
    if (!watch->isWatching()) {
        // Out of descriptors or threads: the signals end the program as they always do.
        ::close(descriptor);
        return;
    }
    counter = descriptor;
    owner = ::getpid();
    connect(watch.get(), &DescriptorWatch::drained, this, &TerminationSignals::received,
            Qt::SingleShotConnection);
    for (const int signal : taken)
        handle(signal, note);
}

TerminationSignals::~TerminationSignals() {
    if (counter < 0)
        return;
    for (const int signal : taken)
        handle(signal, SIG_DFL);
    watch.reset();
    ::close(counter);
    counter = -1;
}

} // namespace tambrelle
