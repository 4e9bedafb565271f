#include "player/Termination.h"

#include <array>
#include <csignal>

#include <fcntl.h>
#include <unistd.h>

namespace tambrelle {

namespace {

// The handler may only touch what is there before it is installed.
std::array<int, 2> ends{-1, -1};

int readingEnd() {
    return pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) == 0 ? ends[0] : -1;
}

void handle(int /*signal*/) {
    alarm(1);
    const char anything = 0;
    [[maybe_unused]] const auto written = write(ends[1], &anything, sizeof anything);
}

} // namespace

Termination::Termination() : notifier(readingEnd(), QSocketNotifier::Read) {
    connect(&notifier, &QSocketNotifier::activated, this, [this] {
        notifier.setEnabled(false);
        emit requested();
    });
    std::signal(SIGTERM, handle);
}

Termination::~Termination() {
    std::signal(SIGTERM, SIG_DFL);
    close(ends[0]);
    close(ends[1]);
}

} // namespace tambrelle
