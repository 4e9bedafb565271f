#include "player/WaveHeader.h"

#include <gtest/gtest.h>

using namespace tambrelle;

namespace {

// A size of 0x24: 36 bytes after the preamble's 8.
constexpr std::string_view header("RIFF\x24\0\0\0WAVEfmt ", 16);

} // namespace

TEST(WaveHeader, IsKeptByAFileOfItsSizeOrMore) {
    EXPECT_FALSE(promisesMoreThanFile(header, 44));
    EXPECT_FALSE(promisesMoreThanFile(header, 45));
}

TEST(WaveHeader, IsBrokenByAShorterFile) {
    EXPECT_TRUE(promisesMoreThanFile(header, 43));
}

TEST(WaveHeader, PromisesNothingWhenStreamed) {
    EXPECT_FALSE(promisesMoreThanFile(std::string_view("RIFF\xFF\xFF\xFF\xFFWAVEfmt ", 16), 44));
}

TEST(WaveHeader, IsNotSeenInOtherFiles) {
    EXPECT_FALSE(promisesMoreThanFile(std::string_view("ID3\x04\0\0\0\0\0#TSSE", 14), 20));
    EXPECT_FALSE(promisesMoreThanFile(std::string_view("RIFF\x24", 5), 5));
    EXPECT_FALSE(promisesMoreThanFile(std::string_view(), 0));
}
