#include "platform/freedesktop/InstalledResources.h"

#include "tests/support/Printers.h"
#include "tests/support/ScopedEnvironment.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace tambrelle {
namespace {

TEST(InstalledResourcesTest, FindsTheFilesOfTheChosenFolder) {
    const QTemporaryDir folder;
    ASSERT_TRUE(QDir().mkpath(folder.filePath(QStringLiteral("plates"))));
    QFile plate(folder.filePath(QStringLiteral("plates/Guillotine.png")));
    ASSERT_TRUE(plate.open(QIODevice::WriteOnly));
    const test::ScopedEnvironment chosen("TAMBRELLE_RESOURCES", QFile::encodeName(folder.path()));
    const InstalledResources resources;
    EXPECT_EQ(resources.file(QStringLiteral("plates/Guillotine.png")), plate.fileName());
    EXPECT_EQ(resources.file(QStringLiteral("plates/day_001_raisin.png")), std::nullopt);
    EXPECT_EQ(resources.file(QStringLiteral("marseillaise.mp3")), std::nullopt);
}

TEST(InstalledResourcesTest, FileThatComesLaterIsFound) {
    const QTemporaryDir folder;
    const test::ScopedEnvironment chosen("TAMBRELLE_RESOURCES", QFile::encodeName(folder.path()));
    const InstalledResources resources;
    EXPECT_EQ(resources.file(QStringLiteral("marseillaise.wav")), std::nullopt);
    QFile sound(folder.filePath(QStringLiteral("marseillaise.wav")));
    ASSERT_TRUE(sound.open(QIODevice::WriteOnly));
    EXPECT_EQ(resources.file(QStringLiteral("marseillaise.wav")), sound.fileName());
}

TEST(InstalledResourcesTest, MissingFolderHoldsNothing) {
    const test::ScopedEnvironment chosen("TAMBRELLE_RESOURCES", "/nowhere/at/all");
    EXPECT_EQ(InstalledResources().file(QStringLiteral("marseillaise.mp3")), std::nullopt);
}

TEST(InstalledResourcesTest, WithoutAChoiceTheProgramsOwnPlaceCounts) {
    const test::ScopedEnvironment none("TAMBRELLE_RESOURCES", QByteArray());
    // The tests lie one folder below the build's resources, as an installed program lies one below its
    // prefix.
    const InstalledResources resources;
    EXPECT_EQ(resources.file(QStringLiteral("marseillaise.mp3")),
              QCoreApplication::applicationDirPath() +
                  QStringLiteral("/../share/tambrelle/marseillaise.mp3"));
    EXPECT_EQ(resources.file(QStringLiteral("no such resource")), std::nullopt);
}

} // namespace
} // namespace tambrelle
