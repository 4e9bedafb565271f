#pragma once

#include "platform/Platform.h"

#include <memory>

namespace tambrelle {

class SessionBus;

/// Every port on a freedesktop desktop, made together and torn down together. Needs the toolkit's application
/// object. The bus outlives it.
class FreedesktopPlatform final {
public:
    explicit FreedesktopPlatform(const SessionBus& bus);
    ~FreedesktopPlatform();

    FreedesktopPlatform(const FreedesktopPlatform&) = delete;
    FreedesktopPlatform& operator=(const FreedesktopPlatform&) = delete;

    /// Valid as long as this object.
    [[nodiscard]] Platform ports();

private:
    struct Parts;
    std::unique_ptr<Parts> parts;
};

} // namespace tambrelle
