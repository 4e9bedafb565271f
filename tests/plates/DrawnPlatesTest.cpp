#include "content/DailyItems.h"
#include "plates/engraver/Png.h"
#include "plates/engraver/PngReader.h"

#include <cinttypes>
#include <cstdio>
#include <fstream>
#include <gtest/gtest.h>
#include <map>
#include <set>
#include <string>

namespace tambrelle::engraver {

namespace {

std::vector<std::filesystem::path> recipes() {
    std::vector<std::filesystem::path> paths;
    for (const auto& entry :
         std::filesystem::recursive_directory_iterator(std::filesystem::path(PLATES_SOURCES) / "subjects"))
        if (entry.path().extension() == ".cpp")
            paths.push_back(entry.path());
    return paths;
}

std::set<std::string> names() {
    std::set<std::string> all;
    for (const auto& path : recipes())
        all.insert(path.stem());
    return all;
}

std::filesystem::path fileOf(const std::string& name) {
    return std::filesystem::path(PLATES_FOLDER) / (name + ".png");
}

const std::map<std::string, Picture>& plates() {
    static const std::map<std::string, Picture> all = [] {
        std::map<std::string, Picture> read;
        for (const std::string& name : names())
            read[name] = readPng(fileOf(name));
        return read;
    }();
    return all;
}

int darkest(const Picture& p, int x, int y) {
    const std::size_t i = static_cast<std::size_t>(y * p.width + x) * 3;
    return std::min({p.rgb[i], p.rgb[i + 1], p.rgb[i + 2]});
}

// The picture in 24 x 24 grey cells.
std::vector<double> thumbnail(const Picture& p) {
    constexpr std::size_t cells = 24;
    std::vector<double> sums(cells * cells, 0.0), counts(cells * cells, 0.0);
    for (int y = 0; y < p.height; ++y)
        for (int x = 0; x < p.width; ++x) {
            const auto k = static_cast<std::size_t>(y) * cells / static_cast<std::size_t>(p.height) * cells +
                           static_cast<std::size_t>(x) * cells / static_cast<std::size_t>(p.width);
            const std::size_t i = static_cast<std::size_t>(y * p.width + x) * 3;
            sums[k] += (p.rgb[i] + p.rgb[i + 1] + p.rgb[i + 2]) / 3.0;
            counts[k] += 1;
        }
    for (std::size_t k = 0; k < sums.size(); ++k)
        sums[k] /= counts[k];
    return sums;
}

} // namespace

TEST(DrawnPlates, ThereIsOneRecipeForEachDayInItsMonthAndOneForTheGuillotine) {
    std::map<std::string, std::string> folders{{"Guillotine", "subjects"}};
    for (std::int64_t month = 1; month <= 12; ++month)
        for (std::int64_t day = 1; day <= 30; ++day) {
            const std::string number = (month < 10 ? "0" : "") + std::to_string(month);
            folders[DailyItems::item({1, month, day, 1})->imageName()] = "month_" + number;
        }
    ASSERT_EQ(folders.size(), 361U);
    for (const auto& path : recipes()) {
        ASSERT_TRUE(folders.contains(path.stem())) << path;
        EXPECT_EQ(path.parent_path().filename(), folders[path.stem()]) << path;
    }
    for (const auto& [name, folder] : folders)
        EXPECT_TRUE(names().contains(name)) << "no recipe for " << name;
    EXPECT_EQ(recipes().size(), folders.size());
}

TEST(DrawnPlates, HaveTheirSizeAndAreNotTooLarge) {
    ASSERT_EQ(plates().size(), 361U);
    for (const auto& [name, picture] : plates()) {
        EXPECT_EQ(picture.width, 576) << name;
        EXPECT_EQ(picture.height, 520) << name;
        EXPECT_LE(std::filesystem::file_size(fileOf(name)), largestFile) << name;
    }
}

TEST(DrawnPlates, StandOnPureWhiteAndTouchNoFrame) {
    constexpr int margin = 16; // two thirds of the margin that composition leaves
    for (const auto& [name, p] : plates()) {
        int soiled = 0;
        for (int y = 0; y < p.height; ++y)
            for (int x = 0; x < p.width; ++x) {
                const bool frame =
                    x < margin || y < margin || x >= p.width - margin || y >= p.height - margin;
                if (frame && darkest(p, x, y) != 255)
                    ++soiled;
            }
        EXPECT_EQ(soiled, 0) << name;
    }
}

TEST(DrawnPlates, ShowASubjectThatFillsItsSheet) {
    for (const auto& [name, p] : plates()) {
        int left = p.width, right = 0, top = p.height, bottom = 0, inked = 0;
        for (int y = 0; y < p.height; ++y)
            for (int x = 0; x < p.width; ++x)
                if (darkest(p, x, y) < 200) {
                    left = std::min(left, x);
                    right = std::max(right, x);
                    top = std::min(top, y);
                    bottom = std::max(bottom, y);
                    ++inked;
                }
        EXPECT_GT(inked, p.width * p.height / 50) << name;
        EXPECT_TRUE(right - left > p.width * 3 / 4 || bottom - top > p.height * 3 / 4) << name;
    }
}

TEST(DrawnPlates, AreNeverNearlyTheSame) {
    std::map<std::string, std::vector<double>> small;
    for (const auto& [name, picture] : plates())
        small[name] = thumbnail(picture);
    for (auto a = small.begin(); a != small.end(); ++a)
        for (auto b = std::next(a); b != small.end(); ++b) {
            double difference = 0;
            for (std::size_t k = 0; k < a->second.size(); ++k)
                difference += std::fabs(a->second[k] - b->second[k]);
            EXPECT_GT(difference / static_cast<double>(a->second.size()), 3.0)
                << a->first << " and " << b->first;
        }
}

TEST(DrawnPlates, AreTheOnesThatWereApproved) {
    std::map<std::string, std::string> golden;
    std::ifstream file(GOLDEN_FILE);
    for (std::string name, print; file >> name >> print;)
        golden[name] = print;
    for (const auto& [name, picture] : plates()) {
        char print[17];
        std::snprintf(print, sizeof print, "%016" PRIx64, fingerprint(picture));
        EXPECT_EQ(golden[name], print) << name << ": look at it, then run plates/update-golden";
    }
    EXPECT_EQ(golden.size(), plates().size());
}

} // namespace tambrelle::engraver
