#pragma once

#include "platform/UserDefaults.h"

#include <QHash>
#include <QVariant>

#include <memory>

class QSettings;

namespace tambrelle {

/// Preferences in one INI file, written from the event loop by way of a new file that is renamed. A file that
/// is damaged, absurdly large or no plain file reads as empty and is set aside, under its name with
/// ".damaged", by the first assignment; one that is unreadable reads as empty. What is set stays readable
/// here even when it cannot be written; what found a full disk is written with the next assignment that
/// does not.
class IniUserDefaults final : public UserDefaults {
public:
    /// `path` need not exist; its folder is made at the first write.
    explicit IniUserDefaults(const QString& path);
    ~IniUserDefaults() override;

    IniUserDefaults(const IniUserDefaults&) = delete;
    IniUserDefaults& operator=(const IniUserDefaults&) = delete;

    [[nodiscard]] std::optional<QString> string(const QString& key) const override;
    [[nodiscard]] bool boolean(const QString& key) const override;
    [[nodiscard]] std::int64_t integer(const QString& key) const override;
    void setString(const QString& key, const QString& value) override;
    void setBoolean(const QString& key, bool value) override;
    void setInteger(const QString& key, std::int64_t value) override;

    /// `$XDG_CONFIG_HOME/tambrelle/tambrelle.conf`.
    [[nodiscard]] static QString standardPath();

private:
    [[nodiscard]] QVariant value(const QString& key) const;
    void set(const QString& key, const QVariant& value);

    void store();
    void replaceDamagedStore();

    QString path;
    std::unique_ptr<QSettings> settings; ///< Null while a damaged file is in the way.
    QHash<QString, QVariant> assigned; ///< Set since the start; holds even where the file cannot be written.
};

} // namespace tambrelle
