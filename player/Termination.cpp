#include "player/Termination.h"

#include <csignal>

#include <unistd.h>

namespace tambrelle {

namespace {

volatile std::sig_atomic_t requested = 0;

} // namespace

void takeTerminationAsARequest() {
    std::signal(SIGTERM, [](int) {
        requested = 1;
        alarm(1);
    });
}

bool terminationRequested() {
    return requested != 0;
}

} // namespace tambrelle
