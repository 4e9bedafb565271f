#pragma once

#include "platform/ResourceBundle.h"

#include <QHash>
#include <QStringList>

namespace tambrelle::fakes {

/// Ships the files that a test names, and records what is looked up.
class FakeResourceBundle final : public ResourceBundle {
public:
    [[nodiscard]] std::optional<QString> file(const QString& name) const override {
        lookedUp.append(name);
        const auto found = files.constFind(name);
        return found == files.cend() ? std::nullopt : std::optional(*found);
    }

    /// Ships a file that exists in name only.
    void add(const QString& name) { files.insert(name, QStringLiteral("/resources/") + name); }

    QHash<QString, QString> files; ///< Paths by their names.
    mutable QStringList lookedUp;
};

} // namespace tambrelle::fakes
