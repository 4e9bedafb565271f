#include "platform/freedesktop/statusitem/NotifierObject.h"

#include "tests/platform/BusObject.h"
#include "tests/support/Printers.h"

#include <QDBusObjectPath>
#include <QImage>
#include <QXmlStreamReader>

#include <gtest/gtest.h>
#include <vector>

namespace tambrelle {
namespace {

const StatusItemContent noonLine{.line = QStringLiteral("🌫️ 23 Brumaire · Tridi · 5:00"), .day = 23};

/// The names of one kind of element in an introspection, such as "property".
QStringList namesIn(const QString& introspection, const QString& element) {
    QXmlStreamReader xml(introspection);
    QStringList names;
    while (!xml.atEnd()) {
        if (xml.readNext() == QXmlStreamReader::StartElement && xml.name() == element)
            names.append(xml.attributes().value(QStringLiteral("name")).toString());
    }
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
    names.sort();
    return names;
}

class NotifierObjectTest : public ::testing::Test {
protected:
    explicit NotifierObjectTest(const NotifierStyle& style = {}) : object(style) {
        object.setContent(noonLine);
        QObject::connect(&object, &NotifierObject::activated, &context,
                         [this](QPoint position) { clicks.push_back(position); });
        QObject::connect(&object, &NotifierObject::changed, &context,
                         [this](const QString& signal, const QVariantList& arguments) {
                             announced.append(signal);
                             lastArguments = arguments;
                         });
    }
    void SetUp() override { ASSERT_TRUE(bus.isReady()) << "no message bus on this machine"; }

    [[nodiscard]] static IconPixmaps pixmapsOf(Qt::GlobalColor colour) {
        QImage image(2, 1, QImage::Format_ARGB32);
        image.fill(colour);
        return {IconPixmap::fromImage(image)};
    }

    NotifierObject object;
    test::BusObject bus{&object, NotifierObject::path, QStringLiteral("org.kde.StatusNotifierItem")};
    QObject context;
    std::vector<QPoint> clicks;
    QStringList announced;
    QVariantList lastArguments;
};

class LabelledNotifierObjectTest : public NotifierObjectTest {
protected:
    LabelledNotifierObjectTest() : NotifierObjectTest({.label = true, .menu = false, .refuseClicks = true}) {}
};

TEST_F(NotifierObjectTest, ShowsTheLineAsTitleAndToolTip) {
    EXPECT_EQ(bus.property(QStringLiteral("Title")).toString(), noonLine.line);
    const auto toolTip = qdbus_cast<ToolTip>(bus.property(QStringLiteral("ToolTip")));
    EXPECT_EQ(toolTip.title, noonLine.line);
    EXPECT_EQ(toolTip.body, QString());
}

TEST_F(NotifierObjectTest, HasTheFixedProperties) {
    EXPECT_EQ(bus.property(QStringLiteral("Id")).toString(), QStringLiteral("org.tambrelle.Tambrelle"));
    EXPECT_EQ(bus.property(QStringLiteral("Category")).toString(), QStringLiteral("ApplicationStatus"));
    EXPECT_EQ(bus.property(QStringLiteral("Status")).toString(), QStringLiteral("Active"));
    EXPECT_EQ(bus.property(QStringLiteral("ItemIsMenu")), QVariant(false));
    EXPECT_EQ(bus.property(QStringLiteral("WindowId")), QVariant(0));
    EXPECT_EQ(bus.property(QStringLiteral("Menu")).value<QDBusObjectPath>().path(), NotifierObject::menuPath);
}

TEST_F(NotifierObjectTest, ShowsNoLabelWhereTheBarWantsNone) {
    EXPECT_FALSE(bus.property(QStringLiteral("XAyatanaLabel")).isValid());
    EXPECT_FALSE(bus.allProperties().contains(QStringLiteral("XAyatanaLabel")));
    EXPECT_FALSE(bus.introspection().contains(QStringLiteral("XAyatana")));
}

TEST_F(LabelledNotifierObjectTest, ShowsTheLabelAndNoMenu) {
    EXPECT_EQ(bus.property(QStringLiteral("XAyatanaLabel")).toString(), noonLine.line);
    EXPECT_FALSE(bus.property(QStringLiteral("XAyatanaLabelGuide")).toString().isEmpty());
    EXPECT_EQ(bus.property(QStringLiteral("Menu")).value<QDBusObjectPath>().path(),
              QStringLiteral("/NO_DBUSMENU"));
}

TEST_F(NotifierObjectTest, GivesItsIconInNetworkOrder) {
    object.setIcon(pixmapsOf(Qt::red));
    const auto icon = qdbus_cast<IconPixmaps>(bus.property(QStringLiteral("IconPixmap")));
    ASSERT_EQ(icon.size(), 1);
    EXPECT_EQ(icon[0].width, 2);
    EXPECT_EQ(icon[0].height, 1);
    EXPECT_EQ(icon[0].argb, QByteArray::fromHex("ffff0000ffff0000"));
}

TEST_F(NotifierObjectTest, GetAllAndTheIntrospectionNameTheSameProperties) {
    QStringList all = bus.allProperties().keys();
    all.sort();
    EXPECT_EQ(all, namesIn(bus.introspection(), QStringLiteral("property")));
    EXPECT_FALSE(all.isEmpty());
}

TEST_F(LabelledNotifierObjectTest, GetAllAndTheIntrospectionNameTheSameProperties) {
    QStringList all = bus.allProperties().keys();
    all.sort();
    EXPECT_EQ(all, namesIn(bus.introspection(), QStringLiteral("property")));
    EXPECT_TRUE(all.contains(QStringLiteral("XAyatanaLabel")));
}

TEST_F(NotifierObjectTest, IntrospectedMethodsAnswer) {
    const QString introspection = bus.introspection();
    EXPECT_TRUE(namesIn(introspection, QStringLiteral("interface"))
                    .contains(QStringLiteral("org.kde.StatusNotifierItem")));
    EXPECT_TRUE(namesIn(introspection, QStringLiteral("method")).contains(QStringLiteral("Activate")));
    EXPECT_TRUE(namesIn(introspection, QStringLiteral("signal")).contains(QStringLiteral("NewTitle")));
    for (const auto& [method, arguments] : std::vector<std::pair<QString, QVariantList>>{
             {QStringLiteral("SecondaryActivate"), {1, 2}},
             {QStringLiteral("ContextMenu"), {1, 2}},
             {QStringLiteral("Scroll"), {120, QStringLiteral("vertical")}},
             {QStringLiteral("ProvideXdgActivationToken"), {QStringLiteral("token")}}})
        EXPECT_EQ(bus.call(method, arguments).type(), QDBusMessage::ReplyMessage) << method.toStdString();
    EXPECT_TRUE(clicks.empty()) << "nothing opens by the wheel or the middle button";
}

TEST_F(NotifierObjectTest, AClickActivatesAtItsPlace) {
    EXPECT_EQ(bus.call(QStringLiteral("Activate"), {640, -3}).type(), QDBusMessage::ReplyMessage);
    EXPECT_EQ(clicks, std::vector{QPoint(640, -3)});
}

TEST_F(LabelledNotifierObjectTest, AClickActivatesAndIsRefusedSoThatOneSuffices) {
    EXPECT_EQ(bus.call(QStringLiteral("Activate"), {1, 2}).type(), QDBusMessage::ErrorMessage);
    EXPECT_EQ(clicks.size(), 1U);
}

TEST_F(NotifierObjectTest, UnknownPropertyIsAnError) {
    const QString interface = QStringLiteral("org.kde.StatusNotifierItem");
    EXPECT_EQ(bus.properties(QStringLiteral("Get"), {interface, QStringLiteral("Colour")}).errorName(),
              QStringLiteral("org.freedesktop.DBus.Error.UnknownProperty"));
    EXPECT_EQ(bus.properties(QStringLiteral("Get"), {interface, QString()}).errorName(),
              QStringLiteral("org.freedesktop.DBus.Error.UnknownProperty"));
}

TEST_F(NotifierObjectTest, PropertiesCannotBeSet) {
    const QDBusMessage reply = bus.properties(
        QStringLiteral("Set"), {QStringLiteral("org.kde.StatusNotifierItem"), QStringLiteral("Title"),
                                QVariant::fromValue(QDBusVariant(QStringLiteral("mine")))});
    EXPECT_EQ(reply.errorName(), QStringLiteral("org.freedesktop.DBus.Error.PropertyReadOnly"));
    EXPECT_EQ(bus.property(QStringLiteral("Title")).toString(), noonLine.line);
}

TEST_F(NotifierObjectTest, WrongTypesAreAnError) {
    const QString invalid = QStringLiteral("org.freedesktop.DBus.Error.InvalidArgs");
    EXPECT_EQ(bus.call(QStringLiteral("Activate"), {}).errorName(), invalid);
    EXPECT_EQ(bus.call(QStringLiteral("Activate"), {1}).errorName(), invalid);
    EXPECT_EQ(bus.call(QStringLiteral("Activate"), {QStringLiteral("1"), QStringLiteral("2")}).errorName(),
              invalid);
    EXPECT_EQ(bus.call(QStringLiteral("Activate"), {1, 2, 3}).errorName(), invalid);
    EXPECT_EQ(bus.properties(QStringLiteral("Get"), {}).errorName(), invalid);
    EXPECT_EQ(bus.properties(QStringLiteral("Get"), {1, 2}).errorName(), invalid);
    EXPECT_EQ(bus.properties(QStringLiteral("GetAll"), {}).errorName(), invalid);
    EXPECT_EQ(
        bus.properties(QStringLiteral("GetAll"), {QStringLiteral("a"), QStringLiteral("b")}).errorName(),
        invalid);
    EXPECT_TRUE(clicks.empty());
}

TEST_F(NotifierObjectTest, UnknownMethodsAndInterfacesAreErrors) {
    EXPECT_EQ(bus.call(QStringLiteral("Explode"), {}).type(), QDBusMessage::ErrorMessage);
    EXPECT_EQ(bus.callOf(QStringLiteral("org.example.Other"), QStringLiteral("Activate"), {1, 2}).type(),
              QDBusMessage::ErrorMessage);
    EXPECT_EQ(bus.properties(QStringLiteral("Explode"), {}).type(), QDBusMessage::ErrorMessage);
    EXPECT_TRUE(clicks.empty());
}

TEST_F(NotifierObjectTest, ACallWithoutInterfaceIsAnswered) {
    EXPECT_EQ(bus.callOf(QString(), QStringLiteral("Activate"), {1, 2}).type(), QDBusMessage::ReplyMessage);
    EXPECT_EQ(clicks.size(), 1U);
}

TEST_F(NotifierObjectTest, AnnouncesOnlyWhatChanges) {
    object.setContent(noonLine);
    EXPECT_TRUE(announced.isEmpty()) << "nothing differs";
    object.setContent({.line = noonLine.line, .day = 24});
    EXPECT_TRUE(announced.isEmpty()) << "the day alone is no text";
    object.setContent({.line = QStringLiteral("next"), .day = 24});
    announced.sort();
    EXPECT_EQ(announced, (QStringList{QStringLiteral("NewTitle"), QStringLiteral("NewToolTip")}));
}

TEST_F(LabelledNotifierObjectTest, SendsOneSignalForAMinuteWithItsText) {
    object.setContent({.line = QStringLiteral("next"), .day = noonLine.day});
    EXPECT_EQ(announced, QStringList{QStringLiteral("XAyatanaNewLabel")});
    EXPECT_EQ(lastArguments.value(0).toString(), QStringLiteral("next"));
}

TEST_F(LabelledNotifierObjectTest, AnnouncesTheTitleTooWithTheDay) {
    object.setContent({.line = QStringLiteral("next"), .day = noonLine.day + 1});
    announced.sort();
    EXPECT_EQ(announced, (QStringList{QStringLiteral("NewTitle"), QStringLiteral("NewToolTip"),
                                      QStringLiteral("XAyatanaNewLabel")}));
}

TEST_F(NotifierObjectTest, AnnouncesTheIconOnlyWhenItDiffers) {
    object.setIcon(pixmapsOf(Qt::red));
    EXPECT_EQ(announced, QStringList{QStringLiteral("NewIcon")});
    object.setIcon(pixmapsOf(Qt::red));
    EXPECT_EQ(announced.size(), 1);
    object.setIcon(pixmapsOf(Qt::blue));
    EXPECT_EQ(announced.size(), 2);
}

TEST_F(NotifierObjectTest, AnnouncesNothingButIntrospectedSignals) {
    object.setContent({.line = QStringLiteral("next"), .day = 24});
    object.setIcon(pixmapsOf(Qt::red));
    const QStringList introspected = namesIn(bus.introspection(), QStringLiteral("signal"));
    for (const QString& signal : std::as_const(announced))
        EXPECT_TRUE(introspected.contains(signal)) << signal.toStdString();
}

} // namespace
} // namespace tambrelle
