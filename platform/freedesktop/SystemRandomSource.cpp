#include "platform/freedesktop/SystemRandomSource.h"

#include "core/Precondition.h"

#include <cerrno>
#include <sys/random.h>

namespace tambrelle {

std::uint64_t SystemRandomSource::next() {
    std::uint64_t word = 0;
    ssize_t count = 0;
    do {
        count = getrandom(&word, sizeof word, 0);
    } while (count < 0 && errno == EINTR);
    precondition(count == static_cast<ssize_t>(sizeof word), "the system's random source answers");
    return word;
}

} // namespace tambrelle
