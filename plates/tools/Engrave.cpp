// tambrelle-engrave FOLDER [NAME...]: draws the named plates, or all, into FOLDER as NAME.png.
// A name that no day bears is refused: a plate must not be misnamed. So is a plate that is cut off.

#include "content/DailyItems.h"
#include "plates/engraver/Png.h"
#include "plates/engraver/Subject.h"

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <set>
#include <string>
#include <vector>

namespace {

using namespace tambrelle::engraver;

constexpr std::int64_t months = 12;
constexpr std::int64_t daysOfMonth = 30;

std::set<std::string> knownNames() {
    std::set<std::string> names{"Guillotine"};
    for (std::int64_t month = 1; month <= months; ++month)
        for (std::int64_t day = 1; day <= daysOfMonth; ++day)
            names.insert(tambrelle::DailyItems::item({1, month, day, 1})->imageName());
    return names;
}

std::vector<const Subject*> wanted(const std::vector<std::string>& names) {
    if (names.empty())
        return Subject::all();
    std::vector<const Subject*> subjects;
    for (const std::string& name : names) {
        const Subject* subject = Subject::find(name);
        if (subject == nullptr)
            throw std::runtime_error("no recipe is called " + name);
        subjects.push_back(subject);
    }
    return subjects;
}

} // namespace

int main(int argc, char** argv) {
    if (argc < 2) {
        std::fputs("usage: tambrelle-engrave FOLDER [NAME...]\n", stderr);
        return EXIT_FAILURE;
    }
    try {
        const std::filesystem::path folder = argv[1];
        std::filesystem::create_directories(folder);
        const std::set<std::string> known = knownNames();
        for (const Subject* subject : wanted({argv + 2, argv + argc})) {
            const std::string name(subject->imageName());
            if (!known.contains(name))
                throw std::runtime_error("no day is called " + name);
            const Plate plate = subject->draw();
            if (cutOff(plate))
                throw std::runtime_error(name + " is drawn beyond the plate's edge");
            writeFile(folder / (name + ".png"), encodePlate(compose(plate)));
        }
    } catch (const std::exception& error) {
        std::fprintf(stderr, "tambrelle-engrave: %s\n", error.what());
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}
