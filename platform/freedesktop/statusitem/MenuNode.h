#pragma once

#include <QDBusArgument>
#include <QList>
#include <QMetaType>
#include <QVariantMap>

namespace tambrelle {

/// One entry of a menu as `com.canonical.dbusmenu` carries it, with its children.
struct MenuNode {
    int id = 0;
    QVariantMap properties;
    QList<MenuNode> children;
};

QDBusArgument& operator<<(QDBusArgument& argument, const MenuNode& node);
const QDBusArgument& operator>>(const QDBusArgument& argument, MenuNode& node);

/// The pair of an entry's number and its properties that GetGroupProperties returns.
struct MenuItemProperties {
    int id = 0;
    QVariantMap properties;
};

QDBusArgument& operator<<(QDBusArgument& argument, const MenuItemProperties& item);
const QDBusArgument& operator>>(const QDBusArgument& argument, MenuItemProperties& item);

/// Tells the toolkit of both, once or more often; before the first is sent.
void registerMenuTypes();

} // namespace tambrelle

Q_DECLARE_METATYPE(tambrelle::MenuNode)
Q_DECLARE_METATYPE(tambrelle::MenuItemProperties)
