#pragma once

namespace tambrelle {

/// The desktop's own alert sound.
class SystemSound {
public:
    virtual ~SystemSound() = default;

    /// Sounds the alert once; silent where the desktop has none.
    virtual void beep() = 0;
};

} // namespace tambrelle
