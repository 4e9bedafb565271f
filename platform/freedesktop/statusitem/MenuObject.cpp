#include "platform/freedesktop/statusitem/MenuObject.h"

#include "platform/freedesktop/BusMessages.h"
#include "platform/freedesktop/statusitem/MenuNode.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>

#include <array>

namespace tambrelle {

namespace {

const QString menuInterface = QStringLiteral("com.canonical.dbusmenu");

enum Entry : int { root, lineEntry, panelEntry, preferencesEntry, separatorEntry, quitEntry };

constexpr std::array entries{lineEntry, panelEntry, preferencesEntry, separatorEntry, quitEntry};

constexpr auto menuIntrospection = R"xml(
<interface name="com.canonical.dbusmenu">
  <property name="Version" type="u" access="read"/>
  <property name="TextDirection" type="s" access="read"/>
  <property name="Status" type="s" access="read"/>
  <property name="IconThemePath" type="as" access="read"/>
  <method name="GetLayout">
    <arg name="parentId" type="i" direction="in"/><arg name="recursionDepth" type="i" direction="in"/>
    <arg name="propertyNames" type="as" direction="in"/>
    <arg name="revision" type="u" direction="out"/><arg name="layout" type="(ia{sv}av)" direction="out"/>
  </method>
  <method name="GetGroupProperties">
    <arg name="ids" type="ai" direction="in"/><arg name="propertyNames" type="as" direction="in"/>
    <arg name="properties" type="a(ia{sv})" direction="out"/>
  </method>
  <method name="GetProperty">
    <arg name="id" type="i" direction="in"/><arg name="name" type="s" direction="in"/>
    <arg name="value" type="v" direction="out"/>
  </method>
  <method name="Event">
    <arg name="id" type="i" direction="in"/><arg name="eventId" type="s" direction="in"/>
    <arg name="data" type="v" direction="in"/><arg name="timestamp" type="u" direction="in"/>
  </method>
  <method name="EventGroup">
    <arg name="events" type="a(isvu)" direction="in"/><arg name="idErrors" type="ai" direction="out"/>
  </method>
  <method name="AboutToShow">
    <arg name="id" type="i" direction="in"/><arg name="needUpdate" type="b" direction="out"/>
  </method>
  <method name="AboutToShowGroup">
    <arg name="ids" type="ai" direction="in"/>
    <arg name="updatesNeeded" type="ai" direction="out"/><arg name="idErrors" type="ai" direction="out"/>
  </method>
  <signal name="ItemsPropertiesUpdated">
    <arg name="updatedProps" type="a(ia{sv})"/><arg name="removedProps" type="a(ias)"/>
  </signal>
  <signal name="LayoutUpdated"><arg name="revision" type="u"/><arg name="parent" type="i"/></signal>
</interface>
)xml";

/// An underscore marks a mnemonic in this protocol; a doubled one is an underscore.
QString menuLabel(QString text) {
    return text.replace(QLatin1Char('_'), QLatin1String("__"));
}

QVariantMap propertiesOf(int id, const QString& line) {
    const QString label = QStringLiteral("label");
    switch (id) {
    case root:
        return {{QStringLiteral("children-display"), QStringLiteral("submenu")}};
    case lineEntry:
        return {{label, menuLabel(line)}, {QStringLiteral("enabled"), false}};
    case panelEntry:
        return {{label, QStringLiteral("Open the panel")}};
    case preferencesEntry:
        return {{label, QStringLiteral("Preferences")}};
    case separatorEntry:
        return {{QStringLiteral("type"), QStringLiteral("separator")}};
    case quitEntry:
        return {{label, QStringLiteral("Quit")}};
    default:
        return {};
    }
}

QVariantMap menuProperties() {
    return {
        {QStringLiteral("Version"), 3U},
        {QStringLiteral("TextDirection"), QStringLiteral("ltr")},
        {QStringLiteral("Status"), QStringLiteral("normal")},
        {QStringLiteral("IconThemePath"), QStringList()},
    };
}

bool exists(int id) {
    return id >= root && id <= quitEntry;
}

/// The entries clicked in an array of events, each of entry, name, data, time.
QList<int> clickedEntries(const QDBusArgument& events) {
    QList<int> clicked;
    events.beginArray();
    while (!events.atEnd()) {
        int id = 0;
        QString name;
        QDBusVariant data;
        uint time = 0;
        events.beginStructure();
        events >> id >> name >> data >> time;
        events.endStructure();
        if (name == QLatin1String("clicked"))
            clicked.append(id);
    }
    events.endArray();
    return clicked;
}

} // namespace

MenuObject::MenuObject(QObject* parent) : QDBusVirtualObject(parent) {
    registerMenuTypes();
}

void MenuObject::setLine(const QString& text) {
    line = text;
}

QString MenuObject::introspect(const QString& /*path*/) const {
    return QString::fromLatin1(menuIntrospection);
}

bool MenuObject::handleMessage(const QDBusMessage& message, const QDBusConnection& connection) {
    std::optional<QDBusMessage> reply = replyWithProperty(message, menuProperties());
    if (!reply && (message.interface() == menuInterface || message.interface().isEmpty()))
        reply = replyTo(message);
    if (!reply)
        return false;
    if (message.isReplyRequired())
        connection.send(*reply);
    return true;
}

QDBusMessage MenuObject::replyTo(const QDBusMessage& message) {
    const QString member = message.member();
    const QString signature = message.signature();
    const QVariantList arguments = message.arguments();
    if (member == QLatin1String("GetLayout"))
        return signature == QLatin1String("iias") ? layout(message) : invalidArguments(message);
    if (member == QLatin1String("GetGroupProperties"))
        return signature == QLatin1String("aias") ? groupProperties(message) : invalidArguments(message);
    if (member == QLatin1String("GetProperty"))
        return signature == QLatin1String("is") ? entryProperty(message) : invalidArguments(message);
    if (member == QLatin1String("AboutToShow"))
        return signature == QLatin1String("i") ? message.createReply(line != shownLine)
                                               : invalidArguments(message);
    if (member == QLatin1String("AboutToShowGroup")) {
        if (signature != QLatin1String("ai"))
            return invalidArguments(message);
        return message.createReply({QVariant::fromValue(line != shownLine ? QList<int>{root} : QList<int>{}),
                                    QVariant::fromValue(QList<int>{})});
    }
    if (member == QLatin1String("Event")) {
        if (signature != QLatin1String("isvu"))
            return invalidArguments(message);
        if (arguments.at(1).toString() == QLatin1String("clicked"))
            choose(arguments.at(0).toInt());
        return message.createReply();
    }
    if (member == QLatin1String("EventGroup")) {
        if (signature != QLatin1String("a(isvu)"))
            return invalidArguments(message);
        for (const int id : clickedEntries(arguments.at(0).value<QDBusArgument>()))
            choose(id);
        return message.createReply(QVariant::fromValue(QList<int>{}));
    }
    return message.createErrorReply(QDBusError::UnknownMethod, QStringLiteral("The menu has no such method"));
}

QDBusMessage MenuObject::layout(const QDBusMessage& message) {
    const int parent = message.arguments().at(0).toInt();
    if (!exists(parent))
        return message.createErrorReply(QDBusError::InvalidArgs,
                                        QStringLiteral("The menu has no such entry"));
    MenuNode node{parent, propertiesOf(parent, line), {}};
    const bool withChildren = parent == root && message.arguments().at(1).toInt() != 0;
    if (withChildren) {
        for (const Entry entry : entries)
            node.children.append(MenuNode{entry, propertiesOf(entry, line), {}});
    }
    if (line != shownLine) {
        shownLine = line;
        ++revision;
    }
    return message.createReply({revision, QVariant::fromValue(node)});
}

QDBusMessage MenuObject::groupProperties(const QDBusMessage& message) const {
    QList<int> ids = qdbus_cast<QList<int>>(message.arguments().at(0));
    if (ids.isEmpty())
        ids = QList<int>(entries.begin(), entries.end());
    QList<MenuItemProperties> items;
    for (const int id : ids) {
        if (exists(id) && items.size() <= static_cast<qsizetype>(entries.size()))
            items.append({id, propertiesOf(id, line)});
    }
    return message.createReply(QVariant::fromValue(items));
}

QDBusMessage MenuObject::entryProperty(const QDBusMessage& message) const {
    const QVariantMap all = propertiesOf(message.arguments().at(0).toInt(), line);
    const auto found = all.constFind(message.arguments().at(1).toString());
    if (found == all.cend())
        return message.createErrorReply(QDBusError::UnknownProperty, QStringLiteral("No such property"));
    return message.createReply(QVariant::fromValue(QDBusVariant(*found)));
}

void MenuObject::choose(int id) {
    switch (id) {
    case panelEntry:
        emit panelRequested();
        break;
    case preferencesEntry:
        emit preferencesRequested();
        break;
    case quitEntry:
        emit quitRequested();
        break;
    default:
        break;
    }
}

} // namespace tambrelle
