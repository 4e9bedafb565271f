#include "platform/freedesktop/AutostartLoginItem.h"

#include "platform/Identity.h"

#include <QDir>
#include <QFile>
#include <QSaveFile>
#include <QStandardPaths>
#include <QStringList>

namespace tambrelle {

namespace {

/// A desktop entry of ours has some ten lines; what is larger is not read further.
constexpr qint64 mostRead = 16LL * 1024;

/// An argument of an Exec line: in double quotes, with the characters escaped that the desktop entry format
/// reserves there, and then once more for the format's own strings.
QString quotedArgument(const QString& argument) {
    QString quoted;
    for (const QChar c : argument) {
        if (QStringLiteral("\"`$\\").contains(c))
            quoted += QLatin1Char('\\');
        quoted += c == QLatin1Char('%') ? QStringLiteral("%%") : QString(c);
    }
    quoted.replace(QLatin1Char('\\'), QLatin1String("\\\\"));
    quoted.replace(QLatin1Char('\n'), QLatin1String("\\n"));
    quoted.replace(QLatin1Char('\t'), QLatin1String("\\t"));
    quoted.replace(QLatin1Char('\r'), QLatin1String("\\r"));
    return QLatin1Char('"') + quoted + QLatin1Char('"');
}

QString execLine(const QString& program) {
    // GLib looks for the program before it turns %% into %, and then drops the entry as one whose program is
    // missing. A shell in front is found, and gets its argument expanded.
    const QString shell =
        program.contains(QLatin1Char('%'))
            ? QStringLiteral("/bin/sh -c ") + quotedArgument(QStringLiteral("exec \"$0\"")) + QLatin1Char(' ')
            : QString();
    return QStringLiteral("Exec=") + shell + quotedArgument(program);
}

QByteArray entryText(const QString& program) {
    const QStringList lines{
        QStringLiteral("[Desktop Entry]"),
        QStringLiteral("Type=Application"),
        QStringLiteral("Name=Tambrelle"),
        QStringLiteral("Comment=The French Republican calendar in the status bar"),
        execLine(program),
        QStringLiteral("Icon=") + Identity::applicationId,
        QStringLiteral("Terminal=false"),
        // The bar first, so that the item finds it; the program waits for a late one all the same.
        QStringLiteral("X-KDE-autostart-after=panel"),
        QStringLiteral("X-GNOME-UsesNotifications=true"),
        QString(),
    };
    return lines.join(QLatin1Char('\n')).toUtf8();
}

bool switchesOff(const QString& line) {
    return line == QLatin1String("Hidden=true") || line == QLatin1String("X-GNOME-Autostart-enabled=false");
}

} // namespace

AutostartLoginItem::AutostartLoginItem(const QString& folder, const QString& program)
    : path(folder + QLatin1Char('/') + Identity::applicationId + QStringLiteral(".desktop")),
      program(program) {}

QString AutostartLoginItem::standardFolder() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QStringLiteral("/autostart");
}

bool AutostartLoginItem::isEnabled() const {
    QFile entry(path);
    if (!entry.open(QIODevice::ReadOnly))
        return false;
    bool startsThisProgram = false;
    for (const QString& raw : QString::fromUtf8(entry.read(mostRead)).split(QLatin1Char('\n'))) {
        const QString line = raw.trimmed();
        if (switchesOff(line))
            return false;
        startsThisProgram =
            startsThisProgram || line == execLine(program) || line == QLatin1String("Exec=") + program;
    }
    return startsThisProgram;
}

bool AutostartLoginItem::setEnabled(bool enabled) {
    if (enabled)
        return writeEntry();
    return !QFile::exists(path) || QFile::remove(path);
}

bool AutostartLoginItem::writeEntry() const {
    if (!QDir().mkpath(QFileInfo(path).path()))
        return false;
    // A new file that is renamed: a desktop that reads meanwhile never sees half an entry.
    QSaveFile entry(path);
    // Flushed first: on a full disk the toolkit commits what it could not write.
    return entry.open(QIODevice::WriteOnly) && entry.write(entryText(program)) >= 0 && entry.flush() &&
           entry.commit();
}

} // namespace tambrelle
