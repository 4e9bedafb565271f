#include "bench/baseline/BaselineItem.h"

#include "platform/freedesktop/statusitem/IconPixmap.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusPendingCall>
#include <QDBusVariant>
#include <QFont>
#include <QFontMetrics>
#include <QImage>
#include <QPainter>

namespace tambrelle::baseline {

namespace {

const QString watcher = QStringLiteral("org.kde.StatusNotifierWatcher");

QImage drawn(const QString& text) {
    QFont font(QStringLiteral("monospace"));
    font.setPixelSize(13);
    const QFontMetrics metrics(font);
    QImage image(metrics.horizontalAdvance(text), metrics.height(), QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setFont(font);
    painter.setPen(Qt::white);
    painter.drawText(0, metrics.ascent(), text);
    return image;
}

} // namespace

QString BaselineItem::introspect(const QString& /*path*/) const {
    return QStringLiteral("<interface name=\"org.kde.StatusNotifierItem\"/>");
}

BaselineItem::BaselineItem(const QString& text)
    : properties{
          {QStringLiteral("Category"), QStringLiteral("ApplicationStatus")},
          {QStringLiteral("Id"), QStringLiteral("tambrelle-baseline")},
          {QStringLiteral("Title"), QStringLiteral("🌫️ 23 Brumaire · Tridi · 5:00")},
          {QStringLiteral("Status"), QStringLiteral("Active")},
          {QStringLiteral("ItemIsMenu"), false},
          {QStringLiteral("Menu"), QVariant::fromValue(QDBusObjectPath(QStringLiteral("/NO_DBUSMENU")))},
      } {
    if (text.isEmpty()) {
        properties.insert(QStringLiteral("IconName"), QStringLiteral("x-office-calendar"));
        return;
    }
    registerNotifierTypes();
    properties.insert(QStringLiteral("IconPixmap"),
                      QVariant::fromValue(IconPixmaps{IconPixmap::fromImage(drawn(text))}));
}

bool BaselineItem::handleMessage(const QDBusMessage& message, const QDBusConnection& connection) {
    QDBusMessage reply = message.createReply();
    if (message.member() == QLatin1String("GetAll")) {
        reply = message.createReply(QVariant(properties));
    } else if (message.member() == QLatin1String("Get")) {
        const QVariant value = properties.value(message.arguments().value(1).toString());
        reply = value.isValid() ? message.createReply(QVariant::fromValue(QDBusVariant(value)))
                                : message.createErrorReply(QDBusError::UnknownProperty,
                                                           QStringLiteral("No such property"));
    }
    connection.send(reply);
    return true;
}

void BaselineItem::registerWithBar() {
    QDBusConnection bus = QDBusConnection::sessionBus();
    bus.registerVirtualObject(path, this);
    QDBusMessage call = QDBusMessage::createMethodCall(watcher, QStringLiteral("/StatusNotifierWatcher"),
                                                       watcher, QStringLiteral("RegisterStatusNotifierItem"));
    call.setArguments({path});
    bus.asyncCall(call);
}

} // namespace tambrelle::baseline
