#pragma once

#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace tambrelle {

/// Stops the program where a state is reached that only a programming fault can bring about; `what` is the
/// one line that is left on standard error. Absence and failing services are never a matter for this: they
/// are values.
inline void precondition(bool holds, const char* what) {
    if (holds) [[likely]]
        return;
    std::fprintf(stderr, "tambrelle: impossible state: %s\n", what);
    std::abort();
}

/// Signed 64-bit sum; an overflow stops the program.
inline std::int64_t checkedAdd(std::int64_t left, std::int64_t right) {
    std::int64_t result = 0;
    precondition(!__builtin_add_overflow(left, right, &result), "overflow in an addition");
    return result;
}

/// Signed 64-bit difference; an overflow stops the program.
inline std::int64_t checkedSubtract(std::int64_t left, std::int64_t right) {
    std::int64_t result = 0;
    precondition(!__builtin_sub_overflow(left, right, &result), "overflow in a subtraction");
    return result;
}

/// Signed 64-bit product; an overflow stops the program.
inline std::int64_t checkedMultiply(std::int64_t left, std::int64_t right) {
    std::int64_t result = 0;
    precondition(!__builtin_mul_overflow(left, right, &result), "overflow in a multiplication");
    return result;
}

} // namespace tambrelle
