#include "platform/freedesktop/IniUserDefaults.h"

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSettings>
#include <QStandardPaths>
#include <QStorageInfo>

namespace tambrelle {

namespace {

/// Ten short lines need less than 1 KB; a file beyond this is not ours and is not worth the memory.
constexpr qint64 largestSaneFile = 64LL * 1024;

/// Whether there is room for a new file beside the old one. On a full disk the toolkit would put an empty
/// file in its place and report no error.
bool hasRoom(const QString& path) {
    const QFileInfo file(path);
    // The first folder on the way up that exists: ours is made with the first file.
    QString folder = file.absolutePath();
    while (!QFileInfo::exists(folder) && folder != QLatin1String("/"))
        folder = QFileInfo(folder).absolutePath();
    const QStorageInfo storage(folder);
    return !storage.isValid() || storage.bytesAvailable() >= largestSaneFile;
}

std::unique_ptr<QSettings> openStore(const QString& path) {
    return std::make_unique<QSettings>(path, QSettings::IniFormat);
}

/// Whether a value is an object that the toolkit would make from bytes of the file. We store none, and what
/// it makes of damaged ones is not to be relied on. A text of ours that begins so is stored with a second @.
bool holdsObjects(const QString& path) {
    static const QRegularExpression object(QStringLiteral("(^|[^@])@(Variant|DateTime)\\("));
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && QString::fromLatin1(file.readAll()).contains(object);
}

bool isDamaged(const QFileInfo& file) {
    // A pipe or a device would be waited for.
    return file.exists() &&
           (!file.isFile() || file.size() > largestSaneFile || holdsObjects(file.filePath()));
}

/// Null where the file is damaged.
std::unique_ptr<QSettings> openSaneStore(const QString& path) {
    if (isDamaged(QFileInfo(path)))
        return nullptr;
    auto store = openStore(path);
    // The lines of a section are looked at only when a key is asked for.
    store->allKeys();
    return store->status() == QSettings::FormatError ? nullptr : std::move(store);
}

} // namespace

IniUserDefaults::IniUserDefaults(const QString& path) : path(path), settings(openSaneStore(path)) {}

IniUserDefaults::~IniUserDefaults() = default;

QString IniUserDefaults::standardPath() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QStringLiteral("/tambrelle/tambrelle.conf");
}

std::optional<QString> IniUserDefaults::string(const QString& key) const {
    const QVariant stored = value(key);
    return stored.typeId() == QMetaType::QString ? std::optional(stored.toString()) : std::nullopt;
}

bool IniUserDefaults::boolean(const QString& key) const {
    // The file holds text only, so a truth value comes back as the word that was written.
    const QString word = value(key).toString();
    return word == QLatin1String("true") || word == QLatin1String("1");
}

std::int64_t IniUserDefaults::integer(const QString& key) const {
    return value(key).toString().toLongLong();
}

void IniUserDefaults::setString(const QString& key, const QString& value) {
    set(key, value);
}

void IniUserDefaults::setBoolean(const QString& key, bool value) {
    set(key, value);
}

void IniUserDefaults::setInteger(const QString& key, std::int64_t value) {
    set(key, QVariant::fromValue<qlonglong>(value));
}

QVariant IniUserDefaults::value(const QString& key) const {
    if (const auto found = assigned.constFind(key); found != assigned.cend())
        return *found;
    return settings ? settings->value(key) : QVariant();
}

void IniUserDefaults::set(const QString& key, const QVariant& value) {
    assigned.insert(key, value);
    if (!hasRoom(path))
        return; // with the next assignment, perhaps
    if (settings)
        store();
    else
        replaceDamagedStore();
}

void IniUserDefaults::store() {
    for (auto entry = assigned.cbegin(); entry != assigned.cend(); ++entry) {
        if (settings->value(entry.key()) != *entry)
            settings->setValue(entry.key(), *entry);
    }
}

void IniUserDefaults::replaceDamagedStore() {
    // The user may want to mend by hand what we could not read.
    const QString aside = path + QStringLiteral(".damaged");
    QFile::remove(aside);
    if (QFile::exists(path) && !QFile::rename(path, aside))
        return;
    settings = openStore(path);
    store();
}

} // namespace tambrelle
