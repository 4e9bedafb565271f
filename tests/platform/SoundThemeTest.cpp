#include "platform/freedesktop/sound/SoundTheme.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace tambrelle;

namespace {

class SoundThemeTest : public testing::Test {
protected:
    QString write(const QString& path, const QByteArray& content = {}) {
        QString full = folder.filePath(path);
        EXPECT_TRUE(QDir().mkpath(QFileInfo(full).path()));
        QFile file(full);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        return full;
    }

    [[nodiscard]] std::optional<QString> bell(const QString& theme) const {
        return SoundTheme({folder.filePath("home"), folder.filePath("system")}, theme).file("bell");
    }

    QTemporaryDir folder;
};

} // namespace

TEST_F(SoundThemeTest, FindsASoundInItsTheme) {
    const QString file = write("system/ocean/index.theme", "[Sound Theme]\nDirectories=stereo\n");
    const QString bellFile = write("system/ocean/stereo/bell.oga");
    write("system/freedesktop/stereo/bell.oga");
    EXPECT_EQ(bell("ocean"), bellFile);
}

TEST_F(SoundThemeTest, AsksTheUsersFolderFirst) {
    write("system/ocean/stereo/bell.oga");
    const QString own = write("home/ocean/stereo/bell.wav");
    EXPECT_EQ(bell("ocean"), own);
}

TEST_F(SoundThemeTest, InheritsAndFallsBackOnFreedesktop) {
    write("system/a/index.theme", "[Sound Theme]\nInherits=b,c\n");
    write("system/b/index.theme", "[Sound Theme]\nInherits=a\n");
    const QString last = write("system/freedesktop/stereo/bell.oga");
    EXPECT_EQ(bell("a"), last);
    const QString inherited = write("system/c/stereo/bell.ogg");
    EXPECT_EQ(bell("a"), inherited);
    EXPECT_EQ(bell("unknown"), last);
}

TEST_F(SoundThemeTest, KeepsSilentWhereTheThemeSaysSo) {
    write("system/ocean/stereo/bell.disabled");
    write("system/freedesktop/stereo/bell.oga");
    EXPECT_EQ(bell("ocean"), std::nullopt);
}

TEST_F(SoundThemeTest, FindsNothingWhereNothingIs) {
    EXPECT_EQ(bell("freedesktop"), std::nullopt);
}
