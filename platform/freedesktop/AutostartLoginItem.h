#pragma once

#include "platform/LoginItem.h"

#include <QString>

namespace tambrelle {

/// The XDG autostart entry of this program. Enabled means: present, not hidden, and starting this very
/// program.
class AutostartLoginItem final : public LoginItem {
public:
    /// `folder` is where the desktop looks for the user's autostart entries; `program` is an absolute path.
    AutostartLoginItem(const QString& folder, const QString& program);

    [[nodiscard]] bool isEnabled() const override;
    [[nodiscard]] bool setEnabled(bool enabled) override;

    /// `$XDG_CONFIG_HOME/autostart`.
    [[nodiscard]] static QString standardFolder();

private:
    [[nodiscard]] bool writeEntry() const;

    QString path;
    QString program;
};

} // namespace tambrelle
