#include "tests/resources/Transcription.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <memory>
#include <numbers>
#include <optional>
#include <span>

namespace tambrelle {

namespace {

constexpr double decodeRate = 22050;
constexpr int lowestKey = 62;
constexpr int highestKey = 83;
constexpr int harmonics = 6;
constexpr double fundamentalWeight = 2;
constexpr std::size_t pitchWindow = 2048;   // 93 ms: parts semitones from their third harmonic on
constexpr std::size_t loudnessWindow = 768; // 35 ms: sees the breath between two equal notes
constexpr std::size_t hop = 220;            // 10 ms
constexpr double silence = 0.004;           // amplitude under which nobody plays
constexpr double breath = 0.4;        // a fall to this part of the loudness before, and back, is a new note
constexpr std::size_t neighbours = 5; // frames on either side that are asked for the majority
constexpr double shortestNote = 0.07; // seconds

double frequency(int key) {
    return 440.0 * std::pow(2.0, (key - 69) / 12.0);
}

/// A Hann-weighted copy of the samples around a place; nothing sounds outside the recording.
std::vector<double> windowed(const Recording& recording, std::size_t centre, std::size_t size) {
    std::vector<double> part(size, 0.0);
    for (std::size_t i = 0; i < size; ++i) {
        const std::size_t place = centre + i;
        if (place < size / 2 || place - size / 2 >= recording.samples.size())
            continue;
        const double phase = 2 * std::numbers::pi * static_cast<double>(i) / static_cast<double>(size);
        part[i] = static_cast<double>(recording.samples[place - size / 2]) * (0.5 - 0.5 * std::cos(phase));
    }
    return part;
}

/// Goertzel's algorithm: the amplitude of one frequency.
double amplitude(std::span<const double> part, double hertz, double rate) {
    const double coefficient = 2 * std::cos(2 * std::numbers::pi * hertz / rate);
    double last = 0;
    double beforeLast = 0;
    for (const double sample : part) {
        const double next = sample + coefficient * last - beforeLast;
        beforeLast = last;
        last = next;
    }
    const double power = last * last + beforeLast * beforeLast - coefficient * last * beforeLast;
    return 4 * std::sqrt(std::max(power, 0.0)) / static_cast<double>(part.size());
}

/// How strongly a key sounds: the weighted geometric mean of its harmonics, since a key that does not sound
/// misses some. The fundamental weighs most, or the octave below, which has all of these harmonics too, would
/// be heard.
double salience(std::span<const double> part, int key, double rate) {
    double logarithms = fundamentalWeight * std::log(amplitude(part, frequency(key), rate) + 1e-6);
    for (int harmonic = 2; harmonic <= harmonics; ++harmonic)
        logarithms += std::log(amplitude(part, frequency(key) * harmonic, rate) + 1e-6);
    return std::exp(logarithms / (fundamentalWeight + harmonics - 1));
}

/// The root of the power of all of a key's harmonics; they beat against each other less than each alone.
double loudness(std::span<const double> part, int key, double rate) {
    double power = 0;
    for (int harmonic = 1; harmonic <= harmonics; ++harmonic)
        power += std::pow(amplitude(part, frequency(key) * harmonic, rate), 2);
    return std::sqrt(power);
}

/// The key that leads around a place, absent where nobody plays.
std::optional<int> leadingKey(const Recording& recording, std::size_t centre) {
    const std::vector<double> part = windowed(recording, centre, pitchWindow);
    std::optional<int> leading;
    double strongest = silence;
    for (int key = lowestKey; key <= highestKey; ++key) {
        if (const double found = salience(part, key, recording.rate); found > strongest) {
            strongest = found;
            leading = key;
        }
    }
    return leading;
}

/// What most of the neighbouring frames hold, so that an attack or a beat between two instruments is no note.
std::optional<int> majority(std::span<const std::optional<int>> keys, std::size_t place) {
    const std::size_t first = place < neighbours ? 0 : place - neighbours;
    const std::size_t last = std::min(keys.size(), place + neighbours + 1);
    std::optional<int> winner = keys[place];
    std::ptrdiff_t votes = 0;
    for (std::size_t i = first; i < last; ++i) {
        const std::ptrdiff_t count = std::count(keys.begin() + static_cast<std::ptrdiff_t>(first),
                                                keys.begin() + static_cast<std::ptrdiff_t>(last), keys[i]);
        if (count > votes) {
            votes = count;
            winner = keys[i];
        }
    }
    return winner;
}

} // namespace

Recording decode(const std::filesystem::path& file) {
    const std::string command = "ffmpeg -v error -nostdin -i '" + file.string() + "' -ac 1 -ar " +
                                std::to_string(static_cast<int>(decodeRate)) + " -f f32le -";
    const std::unique_ptr<FILE, int (*)(FILE*)> pipe(popen(command.c_str(), "r"), &pclose);
    Recording recording{decodeRate, {}};
    std::array<float, 4096> block{};
    while (const std::size_t count =
               pipe ? std::fread(block.data(), sizeof(float), block.size(), pipe.get()) : 0)
        recording.samples.insert(recording.samples.end(), block.begin(),
                                 block.begin() + static_cast<std::ptrdiff_t>(count));
    return recording;
}

std::vector<HeardNote> transcribe(const Recording& recording) {
    std::vector<std::optional<int>> keys;
    for (std::size_t centre = 0; centre < recording.samples.size(); centre += hop)
        keys.push_back(leadingKey(recording, centre));

    std::vector<HeardNote> notes;
    const double frameLength = hop / recording.rate;
    std::optional<int> current;
    double peak = 0;
    double trough = 0;
    for (std::size_t frame = 0; frame < keys.size(); ++frame) {
        const std::optional<int> key = majority(keys, frame);
        if (key) {
            const double now =
                loudness(windowed(recording, frame * hop, loudnessWindow), *key, recording.rate);
            if (key != current || trough < breath * std::min(peak, now)) {
                notes.push_back({*key, static_cast<double>(frame) * frameLength, 0});
                peak = trough = now;
            }
            if (now > peak)
                peak = trough = now;
            trough = std::min(trough, now);
            notes.back().length += frameLength;
        }
        current = key;
    }
    std::erase_if(notes, [](const HeardNote& note) { return note.length < shortestNote; });
    return notes;
}

std::string keyName(int key) {
    static constexpr std::array<const char*, 12> names{"C",  "Db", "D",  "Eb", "E",  "F",
                                                       "Gb", "G",  "Ab", "A",  "Bb", "B"};
    return names.at(static_cast<std::size_t>(key % 12)) + std::to_string(key / 12 - 1);
}

} // namespace tambrelle
