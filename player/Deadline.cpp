#include "player/Deadline.h"

#include <csignal>
#include <cstdlib>

#include <sys/time.h>
#include <unistd.h>

namespace tambrelle {

void endProcessAfter(std::chrono::milliseconds limit) {
    std::signal(SIGALRM, [](int) { _exit(EXIT_SUCCESS); });
    const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(limit);
    const std::chrono::microseconds rest = limit - seconds;
    const itimerval timer{{0, 0}, {seconds.count(), rest.count()}};
    setitimer(ITIMER_REAL, &timer, nullptr);
}

} // namespace tambrelle
