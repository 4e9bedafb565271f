#include "platform/freedesktop/InstalledResources.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace tambrelle {

namespace {

QString resourceFolder() {
    if (QString chosen = qEnvironmentVariable("TAMBRELLE_RESOURCES"); !chosen.isEmpty())
        return chosen;
    const QString program = QCoreApplication::applicationDirPath();
    const QString inBuildTree = program + QStringLiteral("/share/tambrelle");
    return QFileInfo(inBuildTree).isDir() ? inBuildTree : program + QStringLiteral("/../share/tambrelle");
}

} // namespace

InstalledResources::InstalledResources() : folder(resourceFolder()) {}

std::optional<QString> InstalledResources::file(const QString& name) const {
    QString path = folder + QLatin1Char('/') + name;
    if (!QFileInfo::exists(path))
        return std::nullopt;
    return path;
}

} // namespace tambrelle
