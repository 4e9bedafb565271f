#include "platform/freedesktop/statusitem/MenuObject.h"
#include "platform/freedesktop/statusitem/MenuNode.h"

#include "tests/platform/BusObject.h"
#include "tests/support/Printers.h"

#include <QXmlStreamReader>

#include <gtest/gtest.h>

#include <utility>

namespace tambrelle {
namespace {

/// How deep a bar wants the menu: all of it.
constexpr int allLevels = -1;
constexpr int root = 0;

class MenuObjectTest : public ::testing::Test {
protected:
    MenuObjectTest() {
        menu.setLine(QStringLiteral("5_00"));
        QObject::connect(&menu, &MenuObject::panelRequested, &context,
                         [this] { chosen += QLatin1Char('p'); });
        QObject::connect(&menu, &MenuObject::preferencesRequested, &context,
                         [this] { chosen += QLatin1Char('s'); });
        QObject::connect(&menu, &MenuObject::quitRequested, &context, [this] { chosen += QLatin1Char('q'); });
    }
    void SetUp() override { ASSERT_TRUE(bus.isReady()) << "no message bus on this machine"; }

    [[nodiscard]] QDBusMessage layout(int parent, int depth) const {
        return bus.call(QStringLiteral("GetLayout"), {parent, depth, QStringList()});
    }
    [[nodiscard]] MenuNode tree() const {
        return qdbus_cast<MenuNode>(layout(root, allLevels).arguments().value(1));
    }
    [[nodiscard]] int entryLabelled(const QString& label) const {
        for (const MenuNode& child : tree().children) {
            if (child.properties.value(QStringLiteral("label")) == label)
                return child.id;
        }
        return -1;
    }
    [[nodiscard]] QDBusMessage groupProperties(const QList<int>& ids) const {
        return bus.call(QStringLiteral("GetGroupProperties"), {QVariant::fromValue(ids), QStringList()});
    }
    [[nodiscard]] QDBusMessage event(int id, const QString& name) const {
        return bus.call(QStringLiteral("Event"), {id, name, QVariant::fromValue(QDBusVariant(0)), 0U});
    }

    MenuObject menu;
    test::BusObject bus{&menu, QStringLiteral("/MenuBar"), QStringLiteral("com.canonical.dbusmenu")};
    QObject context;
    QString chosen;
};

/// Each entry's number and properties in a reply to GetGroupProperties.
QList<std::pair<int, QVariantMap>> itemsOf(const QDBusMessage& reply) {
    QList<std::pair<int, QVariantMap>> items;
    const auto array = reply.arguments().value(0).value<QDBusArgument>();
    array.beginArray();
    while (!array.atEnd()) {
        std::pair<int, QVariantMap> item;
        array.beginStructure();
        array >> item.first >> item.second;
        array.endStructure();
        items.append(item);
    }
    array.endArray();
    return items;
}

const QString openPanel = QStringLiteral("Open the panel");
const QString preferences = QStringLiteral("Preferences");
const QString quit = QStringLiteral("Quit");

TEST_F(MenuObjectTest, HoldsTheLineThePanelThePreferencesAndQuit) {
    const MenuNode node = tree();
    EXPECT_EQ(node.id, root);
    EXPECT_EQ(node.properties.value(QStringLiteral("children-display")), QStringLiteral("submenu"));
    QStringList labels;
    for (const MenuNode& child : node.children)
        labels.append(child.properties.value(QStringLiteral("label")).toString());
    EXPECT_EQ(labels, (QStringList{QStringLiteral("5__00"), openPanel, preferences, QString(), quit}))
        << "a doubled underscore is one that marks no mnemonic";
    EXPECT_EQ(node.children[0].properties.value(QStringLiteral("enabled")), QVariant(false));
    EXPECT_EQ(node.children[3].properties.value(QStringLiteral("type")), QStringLiteral("separator"));
}

TEST_F(MenuObjectTest, GivesAsManyLevelsAsAreAskedFor) {
    EXPECT_TRUE(qdbus_cast<MenuNode>(layout(root, 0).arguments().value(1)).children.isEmpty());
    EXPECT_EQ(qdbus_cast<MenuNode>(layout(root, 1).arguments().value(1)).children.size(), 5);
    const int entry = entryLabelled(quit);
    const auto leaf = qdbus_cast<MenuNode>(layout(entry, allLevels).arguments().value(1));
    EXPECT_EQ(leaf.id, entry);
    EXPECT_TRUE(leaf.children.isEmpty());
}

TEST_F(MenuObjectTest, UnknownParentIsAnError) {
    for (const int parent : {-1, 99, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()})
        EXPECT_EQ(layout(parent, allLevels).type(), QDBusMessage::ErrorMessage) << parent;
}

TEST_F(MenuObjectTest, RevisionGrowsWithTheLineAndNotWithReading) {
    const uint first = layout(root, allLevels).arguments().value(0).toUInt();
    EXPECT_EQ(layout(root, allLevels).arguments().value(0).toUInt(), first);
    EXPECT_EQ(bus.call(QStringLiteral("AboutToShow"), {root}).arguments().value(0), QVariant(false));
    menu.setLine(QStringLiteral("5:01"));
    EXPECT_EQ(bus.call(QStringLiteral("AboutToShow"), {root}).arguments().value(0), QVariant(true))
        << "the bar has an old line";
    EXPECT_GT(layout(root, allLevels).arguments().value(0).toUInt(), first);
    EXPECT_EQ(bus.call(QStringLiteral("AboutToShow"), {root}).arguments().value(0), QVariant(false));
}

TEST_F(MenuObjectTest, GroupPropertiesAreThoseOfTheEntriesThatExist) {
    const int entry = entryLabelled(quit);
    const QDBusMessage reply = groupProperties({entry, 99, -1});
    ASSERT_EQ(reply.type(), QDBusMessage::ReplyMessage) << reply.errorMessage().toStdString();
    EXPECT_EQ(reply.signature(), QStringLiteral("a(ia{sv})"));
    const auto items = itemsOf(reply);
    ASSERT_EQ(items.size(), 1);
    EXPECT_EQ(items.front().first, entry);
    EXPECT_EQ(items.front().second.value(QStringLiteral("label")), quit);
}

TEST_F(MenuObjectTest, GroupPropertiesOfAHugeRequestStaySmall) {
    const QDBusMessage reply = groupProperties(QList<int>(100000, entryLabelled(quit)));
    ASSERT_EQ(reply.type(), QDBusMessage::ReplyMessage) << reply.errorMessage().toStdString();
    const auto items = itemsOf(reply);
    EXPECT_GT(items.size(), 0);
    EXPECT_LE(items.size(), 16);
}

TEST_F(MenuObjectTest, ClickedEntriesAct) {
    EXPECT_EQ(event(entryLabelled(openPanel), QStringLiteral("clicked")).type(), QDBusMessage::ReplyMessage);
    EXPECT_EQ(event(entryLabelled(preferences), QStringLiteral("clicked")).type(),
              QDBusMessage::ReplyMessage);
    EXPECT_EQ(event(entryLabelled(quit), QStringLiteral("clicked")).type(), QDBusMessage::ReplyMessage);
    EXPECT_EQ(chosen, QStringLiteral("psq"));
}

TEST_F(MenuObjectTest, OtherEventsAndOtherEntriesDoNot) {
    EXPECT_EQ(event(entryLabelled(quit), QStringLiteral("hovered")).type(), QDBusMessage::ReplyMessage);
    EXPECT_EQ(event(root, QStringLiteral("opened")).type(), QDBusMessage::ReplyMessage);
    for (const int id : {root, 99, -1, entryLabelled(QStringLiteral("5__00"))})
        static_cast<void>(event(id, QStringLiteral("clicked")));
    EXPECT_EQ(chosen, QString());
}

TEST_F(MenuObjectTest, PropertiesOfTheMenuAndOfItsEntries) {
    EXPECT_EQ(bus.property(QStringLiteral("Version")), QVariant(3U));
    EXPECT_EQ(bus.property(QStringLiteral("Status")), QVariant(QStringLiteral("normal")));
    EXPECT_FALSE(bus.property(QStringLiteral("Colour")).isValid());
    EXPECT_EQ(bus.allProperties().size(), 4);
    const QDBusMessage label =
        bus.call(QStringLiteral("GetProperty"), {entryLabelled(quit), QStringLiteral("label")});
    EXPECT_EQ(label.arguments().value(0).value<QDBusVariant>().variant(), QVariant(quit));
    EXPECT_EQ(bus.call(QStringLiteral("GetProperty"), {99, QStringLiteral("label")}).type(),
              QDBusMessage::ErrorMessage);
}

TEST_F(MenuObjectTest, WrongTypesAreAnError) {
    const QString invalid = QStringLiteral("org.freedesktop.DBus.Error.InvalidArgs");
    for (const char* method : {"GetLayout", "GetGroupProperties", "GetProperty", "Event", "EventGroup",
                               "AboutToShow", "AboutToShowGroup"}) {
        EXPECT_EQ(bus.call(QString::fromLatin1(method), {}).errorName(), invalid) << method;
        EXPECT_EQ(bus.call(QString::fromLatin1(method), {QStringLiteral("x"), 1.5}).errorName(), invalid)
            << method;
    }
    EXPECT_EQ(bus.properties(QStringLiteral("Get"), {}).errorName(), invalid);
    EXPECT_EQ(bus.properties(QStringLiteral("GetAll"), {1}).errorName(), invalid);
    EXPECT_EQ(chosen, QString());
}

TEST_F(MenuObjectTest, UnknownMethodsAndInterfacesAreErrors) {
    EXPECT_EQ(bus.call(QStringLiteral("Explode"), {}).type(), QDBusMessage::ErrorMessage);
    EXPECT_EQ(bus.callOf(QStringLiteral("org.example.Other"), QStringLiteral("GetLayout"), {}).type(),
              QDBusMessage::ErrorMessage);
    EXPECT_EQ(bus.properties(QStringLiteral("Set"),
                             {QStringLiteral("com.canonical.dbusmenu"), QStringLiteral("Version"),
                              QVariant::fromValue(QDBusVariant(4U))})
                  .type(),
              QDBusMessage::ErrorMessage);
}

TEST_F(MenuObjectTest, IntrospectionIsWellFormedAndNamesTheInterface) {
    QXmlStreamReader xml(bus.introspection());
    bool named = false;
    while (!xml.atEnd()) {
        if (xml.readNext() == QXmlStreamReader::StartElement && xml.name() == QStringLiteral("interface"))
            named = named || xml.attributes().value(QStringLiteral("name")) ==
                                 QStringLiteral("com.canonical.dbusmenu");
    }
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
    EXPECT_TRUE(named);
}

} // namespace
} // namespace tambrelle
