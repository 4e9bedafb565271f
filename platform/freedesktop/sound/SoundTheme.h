#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace tambrelle {

/// The desktop's named sounds, as the XDG sound themes, version 0.8, lay them out in folders.
class SoundTheme final {
public:
    /// `folders` hold themes, the first ones first asked; `name` is the user's theme.
    SoundTheme(const QStringList& folders, const QString& name);

    /// The theme that the user's GTK settings or else KDE's name, "freedesktop" when neither does, in the
    /// data folders of the desktop.
    static SoundTheme current();

    /// The file of a sound, from the theme, from those that it inherits, and at last from "freedesktop".
    /// Absent when none has it or when the theme silences it.
    [[nodiscard]] std::optional<QString> file(const QString& sound) const;

private:
    [[nodiscard]] QStringList lineage() const;

    QStringList folders;
    QString name;
};

} // namespace tambrelle
