#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <map>
#include <regex>
#include <sstream>
#include <string>

namespace {

// What differs from one machine's or compiler's library to another's.
const std::regex
    unsteady(R"(std::(sin|cos|tan|exp|exp2|log|log2|log10|pow|atan|atan2|tanh|hypot|cbrt|asin|acos|)"
             R"(uniform_\w+|normal_distribution|random_device|mt19937\w*|shuffle|rand|sort_heap)\b)");

} // namespace

TEST(PlateSources, UseNothingThatDiffersBetweenMachines) {
    int read = 0;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(PLATES_SOURCES)) {
        if (entry.path().extension() != ".cpp" && entry.path().extension() != ".h")
            continue;
        std::ifstream file(entry.path());
        std::ostringstream contents;
        contents << file.rdbuf();
        const std::string text = contents.str();
        std::smatch found;
        EXPECT_FALSE(std::regex_search(text, found, unsteady)) << entry.path() << ": " << found.str();
        ++read;
    }
    EXPECT_GT(read, 40);
}

// Two types of one name in two headers are one type to the linker: whoever includes the second calls
// functions made for the first, with the wrong fields.
TEST(PlateSources, EveryTypeIsDefinedInOneHeaderOnly) {
    const std::regex definition(R"((?:^|\n)(?:struct|class|enum class) (\w+)[^;{]*\{)");
    std::map<std::string, std::filesystem::path> definedIn;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(PLATES_SOURCES)) {
        if (entry.path().extension() != ".h")
            continue;
        std::ifstream file(entry.path());
        std::ostringstream contents;
        contents << file.rdbuf();
        const std::string text = contents.str();
        for (std::sregex_iterator found(text.begin(), text.end(), definition), end; found != end; ++found) {
            const auto [at, isNew] = definedIn.emplace((*found)[1], entry.path());
            EXPECT_TRUE(isNew) << (*found)[1] << " in " << at->second << " and in " << entry.path();
        }
    }
    EXPECT_GT(definedIn.size(), 60U);
}
