#include "platform/freedesktop/statusitem/NotifierObject.h"

#include "platform/Identity.h"
#include "platform/freedesktop/BusMessages.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QStringList>

#include <utility>

namespace tambrelle {

namespace {

const QString itemInterface = QStringLiteral("org.kde.StatusNotifierItem");

/// The protocol's way of saying that an item has no menu.
const QString noMenuPath = QStringLiteral("/NO_DBUSMENU");

constexpr auto itemIntrospection = R"xml(
<interface name="org.kde.StatusNotifierItem">
  <property name="Category" type="s" access="read"/>
  <property name="Id" type="s" access="read"/>
  <property name="Title" type="s" access="read"/>
  <property name="Status" type="s" access="read"/>
  <property name="WindowId" type="i" access="read"/>
  <property name="IconName" type="s" access="read"/>
  <property name="IconPixmap" type="a(iiay)" access="read"/>
  <property name="ToolTip" type="(sa(iiay)ss)" access="read"/>
  <property name="ItemIsMenu" type="b" access="read"/>
  <property name="Menu" type="o" access="read"/>
%1  <method name="Activate"><arg name="x" type="i" direction="in"/><arg name="y" type="i" direction="in"/></method>
  <method name="SecondaryActivate"><arg name="x" type="i" direction="in"/><arg name="y" type="i" direction="in"/></method>
  <method name="ContextMenu"><arg name="x" type="i" direction="in"/><arg name="y" type="i" direction="in"/></method>
  <method name="Scroll"><arg name="delta" type="i" direction="in"/><arg name="orientation" type="s" direction="in"/></method>
  <method name="ProvideXdgActivationToken"><arg name="token" type="s" direction="in"/></method>
  <signal name="NewTitle"/>
  <signal name="NewIcon"/>
  <signal name="NewToolTip"/>
  <signal name="NewStatus"><arg name="status" type="s"/></signal>
%2</interface>
)xml";

constexpr auto labelProperty = R"xml(  <property name="XAyatanaLabel" type="s" access="read"/>
  <property name="XAyatanaLabelGuide" type="s" access="read"/>
)xml";

constexpr auto labelSignal =
    R"xml(  <signal name="XAyatanaNewLabel"><arg name="label" type="s"/><arg name="guide" type="s"/></signal>
)xml";

/// The arguments of a call when they are of the types that the protocol gives, else nothing.
std::optional<QPoint> positionOf(const QDBusMessage& message) {
    const QVariantList arguments = message.arguments();
    if (message.signature() != QLatin1String("ii"))
        return std::nullopt;
    return QPoint(arguments.at(0).toInt(), arguments.at(1).toInt());
}

} // namespace

NotifierObject::NotifierObject(const NotifierStyle& style, QObject* parent)
    : QDBusVirtualObject(parent), style(style) {
    registerNotifierTypes();
}

void NotifierObject::setContent(const StatusItemContent& next) {
    const StatusItemContent before = std::exchange(content, next);
    if (before.line == content.line)
        return;
    // A bar answers NewTitle and NewToolTip by asking for them. Where the label shows the line, and its
    // signal carries it, the other two need not keep step with every decimal minute.
    if (style.label)
        emit changed(QStringLiteral("XAyatanaNewLabel"), {content.line, content.line});
    if (!style.label || before.day != content.day) {
        emit changed(QStringLiteral("NewTitle"), {});
        emit changed(QStringLiteral("NewToolTip"), {});
    }
}

void NotifierObject::setIconFile(const QString& file) {
    if (file == iconFile)
        return;
    iconFile = file;
    emit changed(QStringLiteral("NewIcon"), {});
}

void NotifierObject::setIcon(const IconPixmaps& pixmaps) {
    if (pixmaps == icon)
        return;
    icon = pixmaps;
    emit changed(QStringLiteral("NewIcon"), {});
}

QString NotifierObject::introspect(const QString& /*path*/) const {
    return QString::fromLatin1(itemIntrospection)
        .arg(QLatin1String(style.label ? labelProperty : ""), QLatin1String(style.label ? labelSignal : ""));
}

QVariantMap NotifierObject::properties() const {
    QVariantMap map{
        {QStringLiteral("Category"), QStringLiteral("ApplicationStatus")},
        {QStringLiteral("Id"), Identity::applicationId},
        {QStringLiteral("Title"), content.line},
        {QStringLiteral("Status"), QStringLiteral("Active")},
        {QStringLiteral("WindowId"), 0},
        {QStringLiteral("IconName"), iconFile},
        {QStringLiteral("IconPixmap"), QVariant::fromValue(icon)},
        {QStringLiteral("ToolTip"), QVariant::fromValue(ToolTip{{}, {}, content.line, {}})},
        {QStringLiteral("ItemIsMenu"), false},
        {QStringLiteral("Menu"), QVariant::fromValue(QDBusObjectPath(style.menu ? menuPath : noMenuPath))},
    };
    if (style.label) {
        map.insert(QStringLiteral("XAyatanaLabel"), content.line);
        map.insert(QStringLiteral("XAyatanaLabelGuide"), content.line);
    }
    return map;
}

bool NotifierObject::handleMessage(const QDBusMessage& message, const QDBusConnection& connection) {
    std::optional<QDBusMessage> reply = replyWithProperty(message, properties());
    // A caller may leave the interface out; then the member's name alone tells.
    if (!reply && (message.interface() == itemInterface || message.interface().isEmpty()))
        reply = handleItem(message);
    if (!reply)
        return false;
    if (message.isReplyRequired())
        connection.send(*reply);
    return true;
}

std::optional<QDBusMessage> NotifierObject::handleItem(const QDBusMessage& message) {
    const QString member = message.member();
    if (member == QLatin1String("Activate")) {
        const auto position = positionOf(message);
        if (!position)
            return invalidArguments(message);
        emit activated(*position);
        if (style.refuseClicks)
            return message.createErrorReply(QDBusError::Failed, QStringLiteral("Shown"));
        return message.createReply();
    }
    // Nothing steps or changes by a middle click or the wheel passing over the item.
    static const QStringList accepted{
        QStringLiteral("SecondaryActivate"),
        QStringLiteral("ContextMenu"),
        QStringLiteral("Scroll"),
        QStringLiteral("ProvideXdgActivationToken"),
        QStringLiteral("XAyatanaSecondaryActivate"),
    };
    if (accepted.contains(member))
        return message.createReply();
    return std::nullopt;
}

} // namespace tambrelle
