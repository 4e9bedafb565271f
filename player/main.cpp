// tambrelle-player VOLUME FILE: plays one sound file (mp3, m4a, wav and what else the libraries know) at
// VOLUME (0 to 1 of the file's own level) and ends with it. A line on standard output says that the file has
// been opened and its sound begins. Status 1 and one line on standard error when the file can't be opened or
// decoded, 2 when called wrongly, else 0: a sound server that is absent or hangs is no fault of the file.

#include "player/Deadline.h"
#include "player/Playback.h"
#include "player/SoundFile.h"
#include "player/Termination.h"

#include <charconv>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <string_view>

namespace {

using namespace tambrelle;
using namespace std::chrono_literals;

constexpr int usageError = 2;

/// For what comes before the first sound, and for a sound server that is late with the last one.
constexpr auto patience = 8s;

/// Locale-independent; absent for what is no number from 0 to 1.
std::optional<double> volumeFrom(std::string_view text) {
    double volume = -1;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), volume);
    const bool isNumber = error == std::errc() && end == text.data() + text.size();
    return isNumber && volume >= 0 && volume <= 1 ? std::optional(volume) : std::nullopt;
}

std::chrono::milliseconds lengthOf(const Sound& sound) {
    return std::chrono::milliseconds(1000 * sound.samples.size() /
                                     (std::size_t{Sound::rate} * Sound::channels));
}

} // namespace

int main(int argc, char** argv) {
    const auto volume = argc == 3 ? volumeFrom(argv[1]) : std::nullopt;
    if (!volume) {
        std::fputs("usage: tambrelle-player VOLUME FILE\n", stderr);
        return usageError;
    }
    // In this order: the deadline and what is left to a terminated process share one timer.
    endProcessAfter(patience);
    takeTerminationAsARequest();
    try {
        const Sound sound = readSoundFile(argv[2]);
        endProcessAfter(lengthOf(sound) + patience);
        if (terminationRequested())
            return EXIT_SUCCESS;
        std::puts("playing");
        std::fflush(stdout);
        play(sound, *volume, terminationRequested);
        return EXIT_SUCCESS;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s: %s\n", argv[2], error.what());
        return EXIT_FAILURE;
    }
}
