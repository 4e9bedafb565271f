#pragma once

#include <cstdlib>
#include <ctime>
#include <optional>
#include <string>

namespace tambrelle::test {

/// Sets TZ for as long as it lives and puts the former value back. Only the variable changes: code under test
/// has to notice by itself.
class ZoneGuard {
public:
    explicit ZoneGuard(const std::string& zone) {
        if (const char* former = std::getenv("TZ"))
            former_ = former;
        set(zone);
    }
    ZoneGuard(const ZoneGuard&) = delete;
    ZoneGuard& operator=(const ZoneGuard&) = delete;
    ~ZoneGuard() {
        if (former_)
            set(*former_);
        else
            unsetenv("TZ");
    }

    void set(const std::string& zone) { setenv("TZ", zone.c_str(), 1); }

private:
    std::optional<std::string> former_;
};

} // namespace tambrelle::test
