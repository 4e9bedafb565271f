#pragma once

#include <QDBusVirtualObject>
#include <QVariantMap>

namespace tambrelle::baseline {

/// The least status notifier item that a bar takes: fixed properties, no menu, no signal. Its icon is one of
/// the desktop's theme, or the text drawn once.
class BaselineItem final : public QDBusVirtualObject {
    Q_OBJECT

public:
    static inline const QString path = QStringLiteral("/StatusNotifierItem");

    /// Draws `text` as the icon; where it is empty the icon has a name.
    explicit BaselineItem(const QString& text);

    [[nodiscard]] QString introspect(const QString& path) const override;
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override;

    /// Puts the item on the session bus and hands it to the bar's watcher, without waiting for an answer.
    void registerWithBar();

private:
    QVariantMap properties;
};

} // namespace tambrelle::baseline
