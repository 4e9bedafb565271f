#pragma once

#include <stdexcept>
#include <string>

namespace tambrelle::soak {

/// What the soak found: the year ends there.
class Violation : public std::runtime_error {
    using std::runtime_error::runtime_error;
};

inline void require(bool holds, const char* what) {
    if (!holds) [[unlikely]]
        throw Violation(what);
}

} // namespace tambrelle::soak
