#pragma once

#include "core/GregorianCalendar.h"
#include "core/Instant.h"

#include <stdexcept>

namespace tambrelle::test {

/// The instant at which the wall clock of the current zone shows these components.
inline Instant local(const CivilComponents& components) {
    const auto instant = GregorianCalendar::instant(components);
    if (!instant)
        throw std::invalid_argument("the wall clock never shows this time");
    return *instant;
}

} // namespace tambrelle::test
