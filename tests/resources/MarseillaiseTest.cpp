#include "tests/resources/Transcription.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <filesystem>
#include <span>
#include <string>

using namespace tambrelle;

namespace {

const std::filesystem::path chime = TAMBRELLE_CHIME;

struct WrittenNote {
    int key;
    double quarters;
};

// The melody as every songbook has it, in B flat, the last note held to the end of its bar:
// "Allons enfants de la Patrie, le jour de gloire est arrivé".
constexpr int F4 = 65, G4 = 67, A4 = 69, Bb4 = 70, C5 = 72, D5 = 74, Eb5 = 75, F5 = 77;
constexpr std::array melody{
    WrittenNote{F4, 0.25},  WrittenNote{F4, 0.75},  WrittenNote{F4, 0.25},  WrittenNote{Bb4, 1},
    WrittenNote{Bb4, 1},    WrittenNote{C5, 1},     WrittenNote{C5, 1},     WrittenNote{F5, 1.5},
    WrittenNote{D5, 0.5},   WrittenNote{Bb4, 0.75}, WrittenNote{Bb4, 0.25}, WrittenNote{D5, 0.75},
    WrittenNote{Bb4, 0.25}, WrittenNote{G4, 1},     WrittenNote{Eb5, 2},    WrittenNote{C5, 0.75},
    WrittenNote{A4, 0.25},  WrittenNote{Bb4, 4},
};

// The band plays at about 80 quarters a minute and slows a little toward the end.
constexpr double quarter = 0.75;   // seconds
constexpr double tolerance = 0.10; // seconds, on a note's length; a sixteenth lasts 0.19
constexpr double slowing = 0.08;   // of a note's length

/// What keeps the heard notes from being the written ones; empty when they are.
std::string difference(std::span<const HeardNote> heard, std::span<const WrittenNote> written) {
    const std::size_t common = std::min(heard.size(), written.size());
    for (std::size_t i = 0; i < common; ++i) {
        const std::string note = "note " + std::to_string(i + 1) + ": ";
        if (heard[i].key != written[i].key)
            return note + keyName(heard[i].key) + " heard, " + keyName(written[i].key) + " written";
        // From one beginning to the next; the last note has only its own sound.
        const double length = i + 1 < heard.size() ? heard[i + 1].start - heard[i].start : heard[i].length;
        const double expected = written[i].quarters * quarter;
        if (std::abs(length - expected) > tolerance + slowing * expected)
            return note + std::to_string(length) + " s heard, " + std::to_string(expected) + " s written";
    }
    if (heard.size() != written.size())
        return std::to_string(heard.size()) + " notes heard, " + std::to_string(written.size()) + " written";
    return "";
}

class MarseillaiseTest : public testing::Test {
protected:
    static void SetUpTestSuite() {
        recording = decode(chime);
        heard = transcribe(recording);
    }

    static inline Recording recording;
    static inline std::vector<HeardNote> heard;
};

} // namespace

TEST_F(MarseillaiseTest, PlaysTheMelodyInItsOrderAndLengths) {
    ASSERT_FALSE(recording.samples.empty()) << "ffmpeg could not decode " << chime;
    EXPECT_EQ(difference(heard, melody), "");
}

// A listener that can't tell a wrong note proves nothing.
TEST_F(MarseillaiseTest, TellsEveryWrongNoteAndEveryWrongLength) {
    for (std::size_t i = 0; i < melody.size(); ++i) {
        for (const int interval : {-12, -2, -1, 1, 2, 12}) {
            auto altered = melody;
            altered[i].key += interval;
            EXPECT_NE(difference(heard, altered), "") << "note " << i + 1 << " moved by " << interval;
        }
        for (const double factor : {0.5, 2.0}) {
            auto altered = melody;
            altered[i].quarters *= factor;
            // Half of a sixteenth is nearer than the tolerance.
            if (std::abs(altered[i].quarters - melody[i].quarters) * quarter > 2 * tolerance) {
                EXPECT_NE(difference(heard, altered), "") << "note " << i + 1 << " times " << factor;
            }
        }
    }
    EXPECT_NE(difference(heard, std::span(melody).first(melody.size() - 1)), "");
    EXPECT_NE(difference(std::span(heard).subspan(1), melody), "");
}

TEST_F(MarseillaiseTest, LastsBetweenTwelveAndEighteenSeconds) {
    const double length = static_cast<double>(recording.samples.size()) / recording.rate;
    EXPECT_GE(length, 12);
    EXPECT_LE(length, 18);
}

TEST_F(MarseillaiseTest, BeginsAtOnceDoesNotClipAndDiesAway) {
    ASSERT_GT(recording.samples.size(), 22050U);
    const auto loudest = [](std::span<const float> part) {
        return std::ranges::max(part, {}, [](float sample) { return std::abs(sample); });
    };
    const std::span<const float> samples = recording.samples;
    EXPECT_GT(std::abs(loudest(samples.first(4410))), 0.05F);
    EXPECT_LT(std::abs(loudest(samples)), 0.99F);
    EXPECT_LT(std::abs(loudest(samples.last(441))), 0.01F);
}

TEST(MarseillaiseFile, IsAtMost400Kilobytes) {
    EXPECT_LE(std::filesystem::file_size(chime), 400'000U);
}

TEST(Transcription, HearsNothingInSilence) {
    EXPECT_TRUE(transcribe({22050, std::vector<float>(44100, 0.0F)}).empty());
}

TEST(Decode, IsEmptyForWhatIsNotSound) {
    EXPECT_TRUE(decode(__FILE__).samples.empty());
}
