#pragma once

#include "platform/SystemSound.h"

#include <QApplication>

namespace tambrelle {

/// The bell of the display.
class ToolkitBeep final : public SystemSound {
public:
    void beep() override { QApplication::beep(); }
};

} // namespace tambrelle
