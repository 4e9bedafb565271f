#include "player/Playback.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <memory>
#include <span>
#include <thread>

#include <pulse/simple.h>

namespace tambrelle {

namespace {

using namespace std::chrono_literals;

/// How much is handed over at once: how soon a request to stop is seen.
constexpr std::size_t portion = std::size_t{Sound::rate} * Sound::channels / 20; // 50 ms

/// How much the server keeps in store: enough for a busy machine, little enough to fall silent at once.
constexpr std::uint32_t storedBytes = portion * sizeof(float) * 5;

/// A server may still be handing the last samples on, out of memory that goes when this process does.
constexpr auto farewell = 300ms;

using Server = std::unique_ptr<pa_simple, decltype(&pa_simple_free)>;

Server connect() {
    const pa_sample_spec format{PA_SAMPLE_FLOAT32NE, Sound::rate, Sound::channels};
    constexpr auto serversChoice = static_cast<std::uint32_t>(-1);
    const pa_buffer_attr buffer{serversChoice, storedBytes, serversChoice, serversChoice, serversChoice};
    return {pa_simple_new(nullptr, "Tambrelle", PA_STREAM_PLAYBACK, nullptr, "La Marseillaise", &format,
                          nullptr, &buffer, nullptr),
            &pa_simple_free};
}

} // namespace

void play(const Sound& sound, double volume, const std::function<bool()>& stop) {
    const Server server = connect();
    if (!server)
        return;
    const auto gain = static_cast<float>(volume);
    std::array<float, portion> scaled{};
    for (std::span<const float> rest(sound.samples); !rest.empty() && !stop();) {
        const auto next = rest.first(std::min(portion, rest.size()));
        std::ranges::transform(next, scaled.begin(), [gain](float sample) { return sample * gain; });
        if (pa_simple_write(server.get(), scaled.data(), next.size_bytes(), nullptr) < 0)
            return;
        rest = rest.subspan(next.size());
    }
    if (stop())
        pa_simple_flush(server.get(), nullptr);
    else
        pa_simple_drain(server.get(), nullptr);
    std::this_thread::sleep_for(farewell);
}

} // namespace tambrelle
