#pragma once

#include <cstdlib>
#include <optional>
#include <string>

namespace tambrelle::test {

/// Within its scope TZ names the local zone. Only the variable changes: code under test has to notice by
/// itself.
class ScopedTimeZone final {
public:
    explicit ScopedTimeZone(const std::string& name) {
        if (const char* before = std::getenv("TZ"))
            previous = before;
        set(name);
    }
    ~ScopedTimeZone() {
        if (previous)
            set(*previous);
        else
            ::unsetenv("TZ");
    }

    ScopedTimeZone(const ScopedTimeZone&) = delete;
    ScopedTimeZone& operator=(const ScopedTimeZone&) = delete;

    void set(const std::string& name) { ::setenv("TZ", name.c_str(), 1); }

private:
    std::optional<std::string> previous;
};

} // namespace tambrelle::test
