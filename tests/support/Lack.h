#pragma once

#include <algorithm>
#include <array>
#include <cstdlib>
#include <iostream>
#include <string_view>

namespace tambrelle::test {

/// Whether a test may be skipped for want of something, which is printed. On a developer's own machine it
/// may; where TAMBRELLE_BARS is set everything has been installed, and only these may be missing all the
/// same.
[[nodiscard]] inline bool mayLack(std::string_view what) {
    constexpr std::array<std::string_view, 2> permitted{
        "mounts of a process's own",     // a container may forbid them
        "zones that count leap seconds", // the distribution may not ship them
    };
    std::cout << "lacking here: " << what << std::endl;
    return std::getenv("TAMBRELLE_BARS") == nullptr || std::ranges::find(permitted, what) != permitted.end();
}

} // namespace tambrelle::test
