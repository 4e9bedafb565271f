#include "platform/freedesktop/IniUserDefaults.h"

#include "tests/support/EventLoop.h"
#include "tests/support/OrdinaryUser.h"
#include "tests/support/Printers.h"

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <csignal>
#include <gtest/gtest.h>
#include <random>
#include <sys/resource.h>
#include <sys/stat.h>

namespace tambrelle {
namespace {

const QString format = QStringLiteral("menuBarFormat");
const QString sound = QStringLiteral("soundEnabled");
const QString hour = QStringLiteral("notificationHour");

/// A file of this size is far beyond what eight preferences need.
constexpr qint64 hundredMegabytes = 100LL * 1024 * 1024;

/// Within its scope no file of this process can grow, as on a full disk.
class FullDisk final {
public:
    FullDisk() : previousHandler(std::signal(SIGXFSZ, SIG_IGN)) {
        ::getrlimit(RLIMIT_FSIZE, &previous);
        rlimit none = previous;
        none.rlim_cur = 0;
        ::setrlimit(RLIMIT_FSIZE, &none);
    }
    ~FullDisk() {
        ::setrlimit(RLIMIT_FSIZE, &previous);
        std::signal(SIGXFSZ, previousHandler);
    }

    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

private:
    void (*previousHandler)(int);
    rlimit previous{};
};

class IniUserDefaultsTest : public ::testing::Test {
protected:
    void write(const QByteArray& text) const {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
    }
    [[nodiscard]] static QByteArray contentOf(const QString& file) {
        QFile stored(file);
        return stored.open(QIODevice::ReadOnly) ? stored.readAll() : QByteArray("no such file");
    }
    [[nodiscard]] QByteArray content() const { return contentOf(path); }

    void expectEmpty(const IniUserDefaults& defaults) const {
        EXPECT_EQ(defaults.string(format), std::nullopt);
        EXPECT_FALSE(defaults.boolean(sound));
        EXPECT_EQ(defaults.integer(hour), 0);
    }

    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("tambrelle.conf"));
    const QString aside = path + QStringLiteral(".damaged");
};

TEST_F(IniUserDefaultsTest, MissingFileIsEmptyAndIsNotMade) {
    const IniUserDefaults defaults(path);
    expectEmpty(defaults);
    test::runQueued();
    EXPECT_FALSE(QFile::exists(path));
}

TEST_F(IniUserDefaultsTest, KeepsTheKeysAtTheTopLevelInTheirTypes) {
    {
        IniUserDefaults defaults(path);
        defaults.setString(format, QStringLiteral("date"));
        defaults.setBoolean(sound, true);
        defaults.setInteger(hour, 21);
        EXPECT_EQ(defaults.string(format), QStringLiteral("date"));
        EXPECT_TRUE(defaults.boolean(sound));
        EXPECT_EQ(defaults.integer(hour), 21);
    }
    EXPECT_EQ(content(), "[General]\nmenuBarFormat=date\nnotificationHour=21\nsoundEnabled=true\n");
    const IniUserDefaults again(path);
    EXPECT_EQ(again.string(format), QStringLiteral("date"));
    EXPECT_TRUE(again.boolean(sound));
    EXPECT_EQ(again.integer(hour), 21);
}

TEST_F(IniUserDefaultsTest, WritesFromTheEventLoop) {
    IniUserDefaults defaults(path);
    defaults.setBoolean(sound, true);
    EXPECT_FALSE(QFile::exists(path));
    test::runQueued();
    EXPECT_EQ(content(), "[General]\nsoundEnabled=true\n");
}

TEST_F(IniUserDefaultsTest, MakesItsFolder) {
    const QString deep = folder.filePath(QStringLiteral("config/tambrelle/tambrelle.conf"));
    {
        IniUserDefaults defaults(deep);
        defaults.setBoolean(sound, true);
    }
    EXPECT_TRUE(IniUserDefaults(deep).boolean(sound));
}

TEST_F(IniUserDefaultsTest, KeepsTheWholeRangeOfIntegers) {
    for (const qlonglong value :
         {std::numeric_limits<qlonglong>::min(), -1LL, 0LL, 99LL, std::numeric_limits<qlonglong>::max()}) {
        {
            IniUserDefaults defaults(path);
            defaults.setInteger(hour, value);
        }
        EXPECT_EQ(IniUserDefaults(path).integer(hour), value);
    }
}

TEST_F(IniUserDefaultsTest, KeepsTextsThatTheFileFormatUsesItself) {
    for (const QString& text :
         {QStringLiteral("a=b"), QStringLiteral("a, b"), QStringLiteral("\"quoted\""),
          QStringLiteral("@Variant(x)"), QStringLiteral("%20"), QStringLiteral("[section]"),
          QStringLiteral("; comment"), QStringLiteral("Décadi 🌫️"), QStringLiteral("two\nlines"),
          QStringLiteral("back\\slash"), QString()}) {
        {
            IniUserDefaults defaults(path);
            defaults.setString(format, text);
        }
        EXPECT_EQ(IniUserDefaults(path).string(format), text);
    }
}

TEST_F(IniUserDefaultsTest, ReadsHandWrittenFiles) {
    write("; mine\n[General]\nmenuBarFormat = dayNumber\nsoundEnabled=1\nnotificationHour= 7\n");
    const IniUserDefaults defaults(path);
    EXPECT_EQ(defaults.string(format), QStringLiteral("dayNumber"));
    EXPECT_TRUE(defaults.boolean(sound));
    EXPECT_EQ(defaults.integer(hour), 7);
}

TEST_F(IniUserDefaultsTest, ValuesOfOtherTypesReadAsMissing) {
    write("[General]\nmenuBarFormat=date, time\nsoundEnabled=perhaps\nnotificationHour=eight\n");
    expectEmpty(IniUserDefaults(path));
    write("[General]\nmenuBarFormat=@Invalid()\nsoundEnabled=2\nnotificationHour=99999999999999999999\n");
    expectEmpty(IniUserDefaults(path));
    write(
        "[General]\nmenuBarFormat=@Rect(1 2 3 4)\nsoundEnabled=@Size(1 1)\nnotificationHour=@ByteArray(x)\n");
    expectEmpty(IniUserDefaults(path));
    write("[General]\nmenuBarFormat=@Point(1 2)\nsoundEnabled=true, true\nnotificationHour=7.5\n");
    expectEmpty(IniUserDefaults(path));
}

TEST_F(IniUserDefaultsTest, LeavesTheStoredTextAloneUntilTheNextAssignment) {
    const QByteArray text = "; a note\n[General]\nmenuBarFormat=Date\nunknownKey=stays\n\n[Other]\nx=1\n";
    write(text);
    {
        IniUserDefaults defaults(path);
        EXPECT_EQ(defaults.string(format), QStringLiteral("Date"));
        test::runQueued();
        EXPECT_EQ(content(), text);
        defaults.setString(format, QStringLiteral("date"));
    }
    EXPECT_TRUE(content().contains("menuBarFormat=date\n"));
    EXPECT_TRUE(content().contains("unknownKey=stays\n")) << "what another version stored is kept";
    EXPECT_TRUE(content().contains("[Other]\nx=1\n"));
}

TEST_F(IniUserDefaultsTest, WritesThroughALinkAndKeepsIt) {
    const QString target = folder.filePath(QStringLiteral("dotfiles.conf"));
    ASSERT_TRUE(QFile::link(target, path));
    {
        IniUserDefaults defaults(path);
        defaults.setBoolean(sound, true);
    }
    EXPECT_TRUE(QFileInfo(path).isSymLink());
    EXPECT_TRUE(contentOf(target).contains("soundEnabled=true"));
}

TEST_F(IniUserDefaultsTest, DamagedFileReadsAsEmptyAndIsSetAsideByTheFirstAssignment) {
    const QByteArray damaged = "[General]\nsoundEnabled=true\nthis is no assignment\nnotificationHour=9\n";
    write(damaged);
    {
        IniUserDefaults defaults(path);
        expectEmpty(defaults);
        test::runQueued();
        EXPECT_EQ(content(), damaged) << "reading changes nothing";
        defaults.setString(format, QStringLiteral("date"));
        EXPECT_EQ(defaults.string(format), QStringLiteral("date"));
        EXPECT_FALSE(defaults.boolean(sound)) << "still empty but for what was assigned";
    }
    EXPECT_EQ(contentOf(aside), damaged);
    EXPECT_EQ(content(), "[General]\nmenuBarFormat=date\n");
    EXPECT_EQ(IniUserDefaults(path).string(format), QStringLiteral("date"));
}

TEST_F(IniUserDefaultsTest, SecondDamageReplacesTheFirstThatWasSetAside) {
    QFile older(aside);
    ASSERT_TRUE(older.open(QIODevice::WriteOnly));
    older.write("older");
    older.close();
    write("newer damage");
    {
        IniUserDefaults defaults(path);
        defaults.setBoolean(sound, true);
    }
    EXPECT_EQ(contentOf(aside), "newer damage");
}

TEST_F(IniUserDefaultsTest, BinaryNoiseNeverCrashesNorGivesAnUnknownType) {
    for (unsigned seed = 0; seed < 200; ++seed) {
        std::mt19937 generator(seed);
        QByteArray noise(1 + static_cast<qsizetype>(generator() % 4096), '\0');
        for (char& byte : noise)
            byte = static_cast<char>(generator() & 0xFFU);
        // Half of them begin as a file of ours does.
        write(seed % 2 == 0 ? noise : "[General]\nsoundEnabled=@Variant(" + noise);
        IniUserDefaults defaults(path);
        expectEmpty(defaults);
        defaults.setBoolean(sound, true);
        EXPECT_TRUE(defaults.boolean(sound));
    }
}

TEST_F(IniUserDefaultsTest, StoredObjectsOfTheToolkitAreNotTakenForValues) {
    // A boolean true, a date, and an unknown type, as the toolkit would serialise them.
    write("[General]\nsoundEnabled=@Variant(\\0\\0\\0\\x1\\x1)\nmenuBarFormat=@Variant("
          "\\0\\0\\0\\xe\\0\\0\\0\\0\\0%\\x80\\0)\n"
          "notificationHour=@Variant(\\x7f\\xff\\xff\\xff\\0)\n");
    const IniUserDefaults defaults(path);
    EXPECT_EQ(defaults.string(format), std::nullopt);
    EXPECT_EQ(defaults.integer(hour), 0);
}

TEST_F(IniUserDefaultsTest, FileOfAHundredMegabytesIsNotRead) {
    QFile huge(path);
    ASSERT_TRUE(huge.open(QIODevice::WriteOnly));
    huge.write("[General]\nsoundEnabled=true\n");
    // A hole, so that the disk is spared.
    ASSERT_TRUE(huge.resize(hundredMegabytes));
    huge.close();
    {
        IniUserDefaults defaults(path);
        expectEmpty(defaults);
        defaults.setInteger(hour, 7);
    }
    EXPECT_EQ(content(), "[General]\nnotificationHour=7\n");
    EXPECT_EQ(QFileInfo(aside).size(), hundredMegabytes);
}

TEST_F(IniUserDefaultsTest, KeysOfAMegabyteAreNotRead) {
    write("[General]\n" + QByteArray(1024LL * 1024, 'k') + "=1\nsoundEnabled=true\n");
    IniUserDefaults defaults(path);
    expectEmpty(defaults);
    defaults.setBoolean(sound, true);
    test::runQueued();
    EXPECT_EQ(content(), "[General]\nsoundEnabled=true\n");
}

TEST_F(IniUserDefaultsTest, AFolderInTheFilesPlaceIsEmptyAndSetAside) {
    ASSERT_TRUE(QDir().mkpath(path + QStringLiteral("/inside")));
    {
        IniUserDefaults defaults(path);
        expectEmpty(defaults);
        defaults.setBoolean(sound, true);
        EXPECT_TRUE(defaults.boolean(sound));
    }
    EXPECT_TRUE(IniUserDefaults(path).boolean(sound));
    EXPECT_TRUE(QFileInfo(aside).isDir());
}

TEST_F(IniUserDefaultsTest, APipeInTheFilesPlaceIsNotWaitedFor) {
    ASSERT_EQ(::mkfifo(QFile::encodeName(path).constData(), 0600), 0);
    {
        IniUserDefaults defaults(path);
        expectEmpty(defaults);
        defaults.setBoolean(sound, true);
    }
    EXPECT_TRUE(IniUserDefaults(path).boolean(sound));
}

TEST_F(IniUserDefaultsTest, UnreadableFileReadsAsEmpty) {
    write("[General]\nsoundEnabled=true\n");
    const test::OrdinaryUser user(folder.path());
    ASSERT_TRUE(user.isOrdinary());
    ASSERT_TRUE(QFile::setPermissions(path, QFileDevice::WriteOwner));
    ASSERT_EQ(content(), "no such file") << "it can still be read";
    const IniUserDefaults defaults(path);
    expectEmpty(defaults);
}

TEST_F(IniUserDefaultsTest, WhereNothingCanBeWrittenTheValuesStayInMemory) {
    // A file in the folder's place: no user, not even the superuser, can write below it.
    write("not a folder");
    IniUserDefaults defaults(path + QStringLiteral("/tambrelle.conf"));
    expectEmpty(defaults);
    defaults.setString(format, QStringLiteral("date"));
    defaults.setBoolean(sound, true);
    defaults.setInteger(hour, 7);
    test::runQueued();
    EXPECT_EQ(defaults.string(format), QStringLiteral("date"));
    EXPECT_TRUE(defaults.boolean(sound));
    EXPECT_EQ(defaults.integer(hour), 7);
    EXPECT_EQ(content(), "not a folder");
}

TEST_F(IniUserDefaultsTest, ReadOnlyFolderKeepsTheValuesInMemory) {
    write("[General]\nnotificationHour=7\n");
    const test::OrdinaryUser user(folder.path());
    ASSERT_TRUE(user.isOrdinary());
    ASSERT_TRUE(QFile::setPermissions(folder.path(), QFileDevice::ReadOwner | QFileDevice::ExeOwner));
    IniUserDefaults defaults(path);
    defaults.setBoolean(sound, true);
    test::runQueued();
    EXPECT_TRUE(defaults.boolean(sound));
    EXPECT_EQ(defaults.integer(hour), 7);
    EXPECT_EQ(content(), "[General]\nnotificationHour=7\n");
    ASSERT_TRUE(QFile::setPermissions(folder.path(), QFileDevice::ReadOwner | QFileDevice::WriteOwner |
                                                         QFileDevice::ExeOwner));
}

TEST_F(IniUserDefaultsTest, FullDiskKeepsTheOldFileAndWritesAllWhenThereIsRoomAgain) {
    const QByteArray before = "[General]\nmenuBarFormat=dayNumber\n";
    write(before);
    IniUserDefaults defaults(path);
    {
        const FullDisk full;
        defaults.setInteger(hour, 7);
        test::runQueued();
        defaults.setBoolean(sound, true);
        test::runQueued();
    }
    EXPECT_EQ(content(), before) << "half a file is worse than an old one";
    EXPECT_EQ(defaults.integer(hour), 7);
    EXPECT_TRUE(defaults.boolean(sound));
    EXPECT_EQ(defaults.string(format), QStringLiteral("dayNumber"));

    defaults.setString(format, QStringLiteral("date"));
    test::runQueued();
    EXPECT_EQ(content(), "[General]\nmenuBarFormat=date\nnotificationHour=7\nsoundEnabled=true\n");
}

TEST_F(IniUserDefaultsTest, DamagedFileThatCannotBeSetAsideStaysAndReadsAsEmpty) {
    // Under the name that it would be set aside is a folder that is in use.
    ASSERT_TRUE(QDir().mkpath(aside + QStringLiteral("/inside")));
    const QByteArray damaged = "[General]\nnotificationHour=9\nthis is no assignment\n";
    write(damaged);
    {
        IniUserDefaults defaults(path);
        defaults.setBoolean(sound, true);
        test::runQueued();
        EXPECT_TRUE(defaults.boolean(sound));
        EXPECT_EQ(defaults.integer(hour), 0);
    }
    EXPECT_EQ(content(), damaged);
}

TEST(IniUserDefaultsPathTest, LiesInTheUsersConfiguration) {
    qputenv("XDG_CONFIG_HOME", "/somewhere/config");
    EXPECT_EQ(IniUserDefaults::standardPath(), QStringLiteral("/somewhere/config/tambrelle/tambrelle.conf"));
}

} // namespace
} // namespace tambrelle
