#pragma once

#include "core/Precondition.h"

#include <cstdint>

namespace tambrelle {

/// A uniform index in 0 to bound - 1 from a source whose `next()` gives uniform 64-bit words. Multiply and
/// reject, after D. Lemire, "Fast Random Integer Generation in an Interval" (2019): the high half of the
/// product is the index, and the few words whose low half would favour some index are drawn again. A bound of
/// 0 stops the program.
template <typename Source>
std::uint64_t uniformIndex(Source& source, std::uint64_t bound) {
    precondition(bound > 0, "an index into nothing");
    __extension__ using Product = unsigned __int128;
    const std::uint64_t rejected = (0 - bound) % bound; // (2^64 - bound) mod bound
    for (;;) {
        const Product product = Product{source.next()} * bound;
        if (static_cast<std::uint64_t>(product) < rejected)
            continue;
        const auto index = static_cast<std::uint64_t>(product >> 64);
        precondition(index < bound, "an index beyond its bound");
        return index;
    }
}

} // namespace tambrelle
