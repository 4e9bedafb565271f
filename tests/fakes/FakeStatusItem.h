#pragma once

#include "platform/StatusItem.h"

#include <vector>

namespace tambrelle::fakes {

/// Records every content that it is given, and can be clicked.
class FakeStatusItem final : public StatusItem {
public:
    void present(const StatusItemContent& content) override { presented.push_back(content); }

    void click(QPoint position = {}) { emit activated(position); }
    void choosePreferences() { emit preferencesRequested(); }
    void chooseQuit() { emit quitRequested(); }

    std::vector<StatusItemContent> presented;
};

} // namespace tambrelle::fakes
