// tambrelle-plateview [--night] [--grey] [--width PIXELS] [--columns N] FILE.png PREFIX...
// Draws the plates whose names begin with a PREFIX ("day_067", "day_0", "Guillotine"; "" for all) as one
// contact sheet on the panel's ground, and prints their names in the order of the sheet.

#include "plates/engraver/Png.h"
#include "plates/engraver/Subject.h"
#include "plates/tools/Sheet.h"

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <string>
#include <string_view>
#include <vector>

namespace {

using namespace tambrelle::engraver;

struct Request {
    SheetForm form;
    std::string file;
    std::vector<std::string> prefixes;
};

Request parse(const std::vector<std::string>& arguments) {
    Request request;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string& word = arguments[i];
        const bool hasValue = i + 1 < arguments.size();
        if (word == "--night")
            request.form.ground = SheetGround::night;
        else if (word == "--grey")
            request.form.grey = true;
        else if (word == "--width" && hasValue)
            request.form.plateWidth = std::stoi(arguments[++i]);
        else if (word == "--columns" && hasValue)
            request.form.columns = std::stoi(arguments[++i]);
        else if (request.file.empty())
            request.file = word;
        else
            request.prefixes.push_back(word);
    }
    return request;
}

} // namespace

int main(int argc, char** argv) {
    try {
        const Request request = parse({argv + 1, argv + argc});
        if (request.prefixes.empty()) {
            std::fputs("usage: tambrelle-plateview [--night] [--grey] [--width PIXELS] [--columns N] "
                       "FILE.png PREFIX...\n",
                       stderr);
            return EXIT_FAILURE;
        }
        std::vector<Picture> plates;
        for (const std::string& prefix : request.prefixes) {
            for (const Subject* subject : Subject::all()) {
                if (!subject->imageName().starts_with(prefix))
                    continue;
                plates.push_back(compose(subject->draw()));
                std::printf("%s\n", std::string(subject->imageName()).c_str());
            }
        }
        if (plates.empty())
            throw std::runtime_error("no recipe has a name that begins so");
        writeFile(request.file, encodePng(contactSheet(plates, request.form)));
    } catch (const std::exception& error) {
        std::fprintf(stderr, "tambrelle-plateview: %s\n", error.what());
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}
