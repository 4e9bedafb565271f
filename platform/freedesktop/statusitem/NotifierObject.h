#pragma once

#include "platform/StatusItem.h"
#include "platform/freedesktop/statusitem/IconPixmap.h"

#include <QDBusVirtualObject>
#include <QPoint>
#include <QVariantMap>

#include <optional>

namespace tambrelle {

/// What a status notifier item shows of itself. A bar takes offence at properties that are there and empty,
/// so those that it should not see are absent.
struct NotifierStyle {
    bool label = false; ///< Offer the line as XAyatanaLabel.
    bool menu = true;   ///< Offer a real menu; otherwise the stand-in path that means none.
    bool refuseClicks =
        false; ///< Answer Activate by an error after acting: one click, not two, then suffices.

    bool operator==(const NotifierStyle&) const = default;
};

/// The object on the bus that is an `org.kde.StatusNotifierItem`. Written out by hand because the set of
/// properties depends on the bar, which an adaptor fixed at compile time cannot do.
class NotifierObject final : public QDBusVirtualObject {
    Q_OBJECT

public:
    static inline const QString path = QStringLiteral("/StatusNotifierItem");
    static inline const QString menuPath = QStringLiteral("/MenuBar");

    explicit NotifierObject(const NotifierStyle& style, QObject* parent = nullptr);

    /// Takes over the content and tells the bar only of what differs.
    void setContent(const StatusItemContent& content);
    /// A file that holds the picture, for a bar that takes no other; announced when it differs.
    void setIconFile(const QString& file);
    /// The picture in the sizes that a bar may want; announced when it differs.
    void setIcon(const IconPixmaps& pixmaps);

    [[nodiscard]] QString introspect(const QString& path) const override;
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override;

signals:
    void activated(QPoint position);
    /// A signal of the item's interface, to be sent by whoever holds the connection.
    void changed(const QString& signal, const QVariantList& arguments);

private:
    [[nodiscard]] QVariantMap properties() const;
    [[nodiscard]] std::optional<QDBusMessage> handleItem(const QDBusMessage& message);

    NotifierStyle style;
    StatusItemContent content;
    IconPixmaps icon;
    QString iconFile;
};

} // namespace tambrelle
