#include "platform/freedesktop/sound/SoundTheme.h"

#include <QFile>
#include <QSettings>
#include <QStandardPaths>

#include <array>

namespace tambrelle {

namespace {

const QString& fallbackTheme() {
    static const QString name = QStringLiteral("freedesktop");
    return name;
}

QString indexOf(const QString& folder, const QString& theme) {
    return folder + QLatin1Char('/') + theme + QStringLiteral("/index.theme");
}

QStringList listIn(const QString& index, const QString& key, const QStringList& otherwise) {
    if (!QFile::exists(index))
        return otherwise;
    const QSettings settings(index, QSettings::IniFormat);
    const QStringList list = settings.value(QStringLiteral("Sound Theme/") + key, otherwise).toStringList();
    return list.isEmpty() ? otherwise : list;
}

/// The value in the first settings file of that name that has one.
QString setting(const QString& file, const QString& key) {
    for (const QString& path : QStandardPaths::locateAll(QStandardPaths::GenericConfigLocation, file)) {
        const QSettings settings(path, QSettings::IniFormat);
        if (QString value = settings.value(key).toString(); !value.isEmpty())
            return value;
    }
    return {};
}

} // namespace

SoundTheme::SoundTheme(const QStringList& folders, const QString& name) : folders(folders), name(name) {}

SoundTheme SoundTheme::current() {
    QString name =
        setting(QStringLiteral("gtk-3.0/settings.ini"), QStringLiteral("Settings/gtk-sound-theme-name"));
    if (name.isEmpty())
        name = setting(QStringLiteral("kdeglobals"), QStringLiteral("Sounds/Theme"));
    return {QStandardPaths::locateAll(QStandardPaths::GenericDataLocation, QStringLiteral("sounds"),
                                      QStandardPaths::LocateDirectory),
            name.isEmpty() ? fallbackTheme() : name};
}

std::optional<QString> SoundTheme::file(const QString& sound) const {
    static constexpr std::array<const char*, 4> extensions{".disabled", ".oga", ".ogg", ".wav"};
    for (const QString& theme : lineage()) {
        for (const QString& folder : folders) {
            const QString index = indexOf(folder, theme);
            for (const QString& part :
                 listIn(index, QStringLiteral("Directories"), {QStringLiteral("stereo")})) {
                for (const char* extension : extensions) {
                    const QString path = folder + QLatin1Char('/') + theme + QLatin1Char('/') + part +
                                         QLatin1Char('/') + sound + QLatin1String(extension);
                    if (QFile::exists(path))
                        return extension == extensions.front() ? std::nullopt : std::optional(path);
                }
            }
        }
    }
    return std::nullopt;
}

QStringList SoundTheme::lineage() const {
    QStringList themes{name};
    // The list grows while it is walked; a theme that inherits in a circle is listed once.
    for (qsizetype i = 0; i < themes.size(); ++i) {
        for (const QString& folder : folders) {
            for (const QString& parent :
                 listIn(indexOf(folder, themes.at(i)), QStringLiteral("Inherits"), {})) {
                if (!themes.contains(parent))
                    themes.append(parent);
            }
        }
    }
    if (!themes.contains(fallbackTheme()))
        themes.append(fallbackTheme());
    return themes;
}

} // namespace tambrelle
