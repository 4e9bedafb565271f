#pragma once

#include "platform/UserDefaults.h"

#include <QHash>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <vector>

namespace tambrelle::fakes {

/// A store in memory that records what is read and what is written. A value of another type than the one
/// asked for reads as missing.
class FakeUserDefaults final : public UserDefaults {
public:
    struct Write {
        QString key;
        QVariant value;

        bool operator==(const Write&) const = default;
    };

    [[nodiscard]] std::optional<QString> string(const QString& key) const override {
        const QVariant value = read(key);
        return value.typeId() == QMetaType::QString ? std::optional(value.toString()) : std::nullopt;
    }
    [[nodiscard]] bool boolean(const QString& key) const override {
        const QVariant value = read(key);
        return value.typeId() == QMetaType::Bool && value.toBool();
    }
    [[nodiscard]] std::int64_t integer(const QString& key) const override {
        const QVariant value = read(key);
        return value.typeId() == QMetaType::LongLong ? value.toLongLong() : 0;
    }

    void setString(const QString& key, const QString& value) override { write(key, value); }
    void setBoolean(const QString& key, bool value) override { write(key, value); }
    void setInteger(const QString& key, std::int64_t value) override {
        write(key, QVariant::fromValue<qlonglong>(value));
    }

    /// What the store holds; a test may fill it before, which is not recorded as a write. Integers are
    /// `qlonglong`.
    QHash<QString, QVariant> values;
    std::vector<Write> writes;
    mutable QStringList reads;

private:
    [[nodiscard]] QVariant read(const QString& key) const {
        reads.append(key);
        return values.value(key);
    }
    void write(const QString& key, const QVariant& value) {
        values.insert(key, value);
        writes.push_back({key, value});
    }
};

} // namespace tambrelle::fakes
