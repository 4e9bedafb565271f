#pragma once

#include <QDBusVirtualObject>
#include <QVariantMap>

namespace tambrelle::baseline {

/// The least status notifier item that a bar takes: fixed properties, no menu, no signal.
class BaselineItem final : public QDBusVirtualObject {
    Q_OBJECT

public:
    static inline const QString path = QStringLiteral("/StatusNotifierItem");

    using QDBusVirtualObject::QDBusVirtualObject;

    [[nodiscard]] QString introspect(const QString& path) const override;
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override;

    /// Puts the item on the session bus and hands it to the bar's watcher, without waiting for an answer.
    void registerWithBar();

private:
    [[nodiscard]] static QVariantMap properties();
};

} // namespace tambrelle::baseline
