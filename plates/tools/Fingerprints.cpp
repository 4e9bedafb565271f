// tambrelle-fingerprints FOLDER: prints the name and fingerprint of every plate in FOLDER, by name.

#include "plates/engraver/PngReader.h"

#include <cinttypes>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <map>
#include <string>

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fputs("usage: tambrelle-fingerprints FOLDER\n", stderr);
        return EXIT_FAILURE;
    }
    try {
        std::map<std::string, std::uint64_t> prints;
        for (const auto& entry : std::filesystem::directory_iterator(argv[1]))
            if (entry.path().extension() == ".png")
                prints[entry.path().stem()] =
                    tambrelle::engraver::fingerprint(tambrelle::engraver::readPng(entry.path()));
        for (const auto& [name, print] : prints)
            std::printf("%s %016" PRIx64 "\n", name.c_str(), print);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "tambrelle-fingerprints: %s\n", error.what());
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}
