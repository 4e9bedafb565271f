#include "platform/freedesktop/AutostartLoginItem.h"

#include "tests/support/EventLoop.h"
#include "tests/support/Lack.h"
#include "tests/support/OrdinaryUser.h"
#include "tests/support/Printers.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace tambrelle {
namespace {

class AutostartLoginItemTest : public ::testing::Test {
protected:
    [[nodiscard]] AutostartLoginItem item() const { return {folder, program}; }
    [[nodiscard]] QByteArray entry() const {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no such file");
    }
    void write(const QByteArray& text) const {
        ASSERT_TRUE(QDir().mkpath(folder));
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
    }

    QTemporaryDir root;
    const QString folder = root.filePath(QStringLiteral("config/autostart"));
    const QString path = folder + QStringLiteral("/org.tambrelle.Tambrelle.desktop");
    QString program = QStringLiteral("/usr/bin/tambrelle");
};

TEST_F(AutostartLoginItemTest, IsOffUntilItIsSwitchedOn) {
    EXPECT_FALSE(item().isEnabled());
    EXPECT_TRUE(item().setEnabled(true));
    EXPECT_TRUE(item().isEnabled());
    EXPECT_TRUE(item().setEnabled(false));
    EXPECT_FALSE(item().isEnabled());
    EXPECT_FALSE(QFile::exists(path));
}

TEST_F(AutostartLoginItemTest, SwitchingTwiceIsNoError) {
    EXPECT_TRUE(item().setEnabled(false));
    EXPECT_TRUE(item().setEnabled(true));
    EXPECT_TRUE(item().setEnabled(true));
    EXPECT_TRUE(item().isEnabled());
}

TEST_F(AutostartLoginItemTest, LeavesNoOtherFileBehind) {
    EXPECT_TRUE(item().setEnabled(true));
    EXPECT_EQ(QDir(folder).entryList(QDir::Files | QDir::Hidden),
              QStringList{QStringLiteral("org.tambrelle.Tambrelle.desktop")});
}

TEST_F(AutostartLoginItemTest, AsksDesktopsToStartTheirPanelFirst) {
    EXPECT_TRUE(item().setEnabled(true));
    EXPECT_TRUE(entry().contains("\nX-KDE-autostart-after=panel\n"));
}

TEST_F(AutostartLoginItemTest, StateIsReadAnewAtEachCall) {
    const AutostartLoginItem login = item();
    EXPECT_FALSE(login.isEnabled());
    EXPECT_TRUE(item().setEnabled(true));
    EXPECT_TRUE(login.isEnabled());
    QFile::remove(path);
    EXPECT_FALSE(login.isEnabled()) << "another program has switched it off";
}

TEST_F(AutostartLoginItemTest, HiddenEntryIsOffAndCanBeSwitchedOnAgain) {
    for (const char* off : {"Hidden=true", "X-GNOME-Autostart-enabled=false"}) {
        EXPECT_TRUE(item().setEnabled(true));
        write(entry() + off + "\n");
        EXPECT_FALSE(item().isEnabled()) << off;
        EXPECT_TRUE(item().setEnabled(true));
        EXPECT_TRUE(item().isEnabled()) << off;
    }
}

TEST_F(AutostartLoginItemTest, EntryThatIsNotHiddenIsOn) {
    EXPECT_TRUE(item().setEnabled(true));
    write(entry() + "Hidden=false\nX-GNOME-Autostart-enabled=true\n");
    EXPECT_TRUE(item().isEnabled());
}

TEST_F(AutostartLoginItemTest, EntryOfAnotherProgramIsOff) {
    EXPECT_TRUE(AutostartLoginItem(folder, QStringLiteral("/opt/old/tambrelle")).setEnabled(true));
    EXPECT_FALSE(item().isEnabled());
    EXPECT_TRUE(item().setEnabled(true));
    EXPECT_TRUE(item().isEnabled()) << "it now starts this program";
}

TEST_F(AutostartLoginItemTest, HandWrittenExecWithoutQuotesIsOurs) {
    write("[Desktop Entry]\nType=Application\nName=Tambrelle\nExec=/usr/bin/tambrelle\n");
    EXPECT_TRUE(item().isEnabled());
}

TEST_F(AutostartLoginItemTest, NoiseInTheEntrysPlaceIsOff) {
    write(QByteArray("\0\xff\xfe[Desktop", 11));
    EXPECT_FALSE(item().isEnabled());
    write("");
    EXPECT_FALSE(item().isEnabled());
    write(QByteArray(1 << 20, 'x') + "\nExec=/usr/bin/tambrelle\n");
    EXPECT_FALSE(item().isEnabled());
}

TEST_F(AutostartLoginItemTest, RefusesWhereNothingCanBeWritten) {
    // A file in the folder's place: no user, not even the superuser, can write below it.
    QFile obstacle(root.filePath(QStringLiteral("config")));
    ASSERT_TRUE(obstacle.open(QIODevice::WriteOnly));
    EXPECT_FALSE(item().setEnabled(true));
    EXPECT_FALSE(item().isEnabled());
    EXPECT_TRUE(item().setEnabled(false)) << "it is off already";
}

TEST_F(AutostartLoginItemTest, RefusesInAReadOnlyFolder) {
    EXPECT_TRUE(item().setEnabled(true));
    const test::OrdinaryUser user(root.path());
    ASSERT_TRUE(user.isOrdinary());
    ASSERT_TRUE(QFile::setPermissions(folder, QFileDevice::ReadOwner | QFileDevice::ExeOwner));
    EXPECT_FALSE(item().setEnabled(false));
    EXPECT_TRUE(item().isEnabled());
    ASSERT_TRUE(QFile::setPermissions(folder, QFileDevice::ReadOwner | QFileDevice::WriteOwner |
                                                  QFileDevice::ExeOwner));
}

TEST_F(AutostartLoginItemTest, RefusesWhereAFolderHasTheEntrysName) {
    ASSERT_TRUE(QDir().mkpath(path + QStringLiteral("/inside")));
    EXPECT_FALSE(item().setEnabled(true));
    EXPECT_FALSE(item().isEnabled());
    EXPECT_FALSE(item().setEnabled(false));
}

TEST(AutostartLoginItemPathTest, LiesInTheUsersConfiguration) {
    qputenv("XDG_CONFIG_HOME", "/somewhere/config");
    EXPECT_EQ(AutostartLoginItem::standardFolder(), QStringLiteral("/somewhere/config/autostart"));
}

/// A program that leaves a mark when it runs, under a name that needs care in an Exec line.
class AutostartExecTest : public AutostartLoginItemTest, public ::testing::WithParamInterface<const char*> {
protected:
    AutostartExecTest() {
        const QString place = root.filePath(QString::fromUtf8(GetParam()));
        QDir().mkpath(place);
        program = place + QStringLiteral("/tambrelle");
        QFile script(program);
        if (script.open(QIODevice::WriteOnly))
            script.write("#!/bin/sh\nprintf '%s' \"$#\" > '" + QFile::encodeName(mark) + "'\n");
        script.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
    }

    const QString mark = root.filePath(QStringLiteral("mark"));
};

TEST_P(AutostartExecTest, EntryIsValidAndOurs) {
    ASSERT_TRUE(item().setEnabled(true));
    EXPECT_TRUE(item().isEnabled());
    if (QStandardPaths::findExecutable(QStringLiteral("desktop-file-validate")).isEmpty()) {
        ASSERT_TRUE(test::mayLack("desktop-file-validate"));
        GTEST_SKIP();
    }
    QProcess validator;
    validator.start(QStringLiteral("desktop-file-validate"), {path});
    ASSERT_TRUE(validator.waitForFinished());
    EXPECT_EQ(validator.exitCode(), 0) << validator.readAll().toStdString() << entry().toStdString();
}

TEST_P(AutostartExecTest, ADesktopStartsTheProgramWithoutArguments) {
    if (QStandardPaths::findExecutable(QStringLiteral("gio")).isEmpty()) {
        ASSERT_TRUE(test::mayLack("gio"));
        GTEST_SKIP();
    }
    ASSERT_TRUE(item().setEnabled(true));
    QProcess desktop;
    desktop.setProcessChannelMode(QProcess::MergedChannels);
    desktop.start(QStringLiteral("gio"), {QStringLiteral("launch"), path});
    ASSERT_TRUE(desktop.waitForFinished());
    ASSERT_EQ(desktop.exitCode(), 0) << desktop.readAll().toStdString() << entry().toStdString();
    QFile left(mark);
    EXPECT_TRUE(test::waitUntil([&left] { return left.size() > 0; })) << entry().toStdString();
    ASSERT_TRUE(left.open(QIODevice::ReadOnly));
    EXPECT_EQ(left.readAll(), "0");
}

INSTANTIATE_TEST_SUITE_P(Names, AutostartExecTest,
                         ::testing::Values("plain", "with blank", "quo\"te", "apos'trophe", "dol$HOME",
                                           "tick`id`", "back\\slash", "trailing\\", "per%fcent", "semi;colon",
                                           "ampers&and", "paren(thesis)", "D\u00e9cadi", "tab\tulator",
                                           "line\nbreak", "all \"of'$`\\them"));

} // namespace
} // namespace tambrelle
