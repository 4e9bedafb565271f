#pragma once

#include <cstddef>
#include <malloc.h>

#if defined(__SANITIZE_ADDRESS__)
// Part of the sanitizers' public interface, whose header not every compiler's package holds.
extern "C" std::size_t __sanitizer_get_current_allocated_bytes(); // NOLINT(bugprone-reserved-identifier)
#endif

namespace tambrelle::soak {

/// Bytes that the process has allocated and not freed, also those that something still points to.
[[nodiscard]] inline std::size_t heapUse() {
#if defined(__SANITIZE_ADDRESS__)
    return __sanitizer_get_current_allocated_bytes();
#else
    return mallinfo2().uordblks;
#endif
}

} // namespace tambrelle::soak
