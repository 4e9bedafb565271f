#pragma once

#include "platform/UserNotificationCenter.h"

namespace tambrelle {

/// Grants nothing and delivers nothing.
class NoNotificationCenter final : public UserNotificationCenter {
public:
    void setDelegate(UserNotificationCenterDelegate* /*delegate*/) override {}
    void requestAuthorization(std::function<void(bool)> completion) override { completion(false); }
    void removeAllPending() override {}
    void add(const UserNotificationRequest& /*request*/) override {}
    [[nodiscard]] std::vector<UserNotificationRequest> pending() const override { return {}; }
};

} // namespace tambrelle
