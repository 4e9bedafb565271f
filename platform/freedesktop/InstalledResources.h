#pragma once

#include "platform/ResourceBundle.h"

namespace tambrelle {

/// The plain files under `share/tambrelle/`, found from the program's own place: beside it in a build tree,
/// under the same prefix when installed. The environment's TAMBRELLE_RESOURCES overrides, for tests.
class InstalledResources final : public ResourceBundle {
public:
    InstalledResources();

    [[nodiscard]] std::optional<QString> file(const QString& name) const override;

private:
    QString folder;
};

} // namespace tambrelle
