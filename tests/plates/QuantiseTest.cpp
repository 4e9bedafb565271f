#include "plates/engraver/Png.h"
#include "plates/engraver/PngReader.h"

#include <cstdlib>
#include <filesystem>
#include <gtest/gtest.h>
#include <unistd.h>

namespace tambrelle::engraver {

namespace {

Picture gradient() {
    Picture picture{64, 64, {}};
    for (int y = 0; y < 64; ++y)
        for (int x = 0; x < 64; ++x)
            for (const int c : {x * 4, y * 4, 128})
                picture.rgb.push_back(static_cast<unsigned char>(c));
    for (std::size_t i = 0; i < std::size_t{64} * 3; ++i)
        picture.rgb[i] = 255;
    return picture;
}

} // namespace

TEST(Quantise, StaysNearTheColoursAndKeepsWhiteWhite) {
    const Picture picture = gradient();
    const IndexedPicture indexed = quantise(picture, 128);
    ASSERT_LE(indexed.palette.size(), 128U);
    double error = 0;
    for (std::size_t i = 0; i < indexed.indices.size(); ++i)
        for (std::size_t c = 0; c < 3; ++c)
            error += std::abs(indexed.palette[indexed.indices[i]][c] - picture.rgb[i * 3 + c]);
    EXPECT_LT(error / static_cast<double>(picture.rgb.size()), 8);
    for (std::size_t i = 0; i < 64; ++i)
        EXPECT_EQ(indexed.palette[indexed.indices[i]], (std::array<unsigned char, 3>{255, 255, 255}));
}

TEST(Png, ReadsBackWhatItWrote) {
    const Picture picture = gradient();
    const auto path =
        std::filesystem::temp_directory_path() / ("png-test-" + std::to_string(::getpid()) + ".png");
    writeFile(path, encodePng(picture));
    EXPECT_EQ(fingerprint(readPng(path)), fingerprint(picture));
    std::filesystem::remove(path);
    EXPECT_THROW(readPng(path), std::runtime_error);
}

TEST(Png, NoisyPlatesStillFitTheLargestFile) {
    Picture picture{576, 520, {}};
    std::uint32_t state = 1;
    for (int k = 0; k < 576 * 520 * 3; ++k) {
        state = state * 1664525 + 1013904223;
        picture.rgb.push_back(static_cast<unsigned char>(k / 3 % 576 < 140 ? state >> 24 : 255));
    }
    EXPECT_LE(encodePlate(picture).size(), largestFile);
}

} // namespace tambrelle::engraver
