#pragma once

#include <cstdlib>
#include <ctime>
#include <optional>
#include <string>

namespace tambrelle::test {

/// Within its scope the local zone is `name`.
class ScopedTimeZone final {
public:
    explicit ScopedTimeZone(const char* name) {
        if (const char* before = std::getenv("TZ"))
            previous = before;
        ::setenv("TZ", name, 1);
        ::tzset();
    }
    ~ScopedTimeZone() {
        if (previous)
            ::setenv("TZ", previous->c_str(), 1);
        else
            ::unsetenv("TZ");
        ::tzset();
    }

    ScopedTimeZone(const ScopedTimeZone&) = delete;
    ScopedTimeZone& operator=(const ScopedTimeZone&) = delete;

private:
    std::optional<std::string> previous;
};

} // namespace tambrelle::test
