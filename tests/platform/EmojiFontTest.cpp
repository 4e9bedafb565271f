#include "platform/freedesktop/EmojiFont.h"

#include <QFont>
#include <QFontDatabase>
#include <QFontInfo>
#include <QStringList>

#include <gtest/gtest.h>

namespace tambrelle {
namespace {

/// The toolkit's own, slower answer.
QString installedFamily(const QString& name) {
    QFont font;
    font.setFamilies({name});
    return QFontInfo(font).family();
}

TEST(EmojiFontTest, KnowsTheInstalledFontsThatTheToolkitWouldTake) {
    const QStringList names{QFontDatabase::systemFont(QFontDatabase::GeneralFont).family(),
                            QFontDatabase::systemFont(QFontDatabase::FixedFont).family(),
                            QStringLiteral("serif"), QStringLiteral("emoji")};
    QStringList expected;
    for (const QString& name : names)
        expected << installedFamily(name);
    preferEmojiFont();
    for (qsizetype k = 0; k < names.size(); ++k) {
        const QStringList substitutes = QFont::substitutes(names[k]);
        ASSERT_FALSE(substitutes.isEmpty()) << names[k].toStdString();
        EXPECT_EQ(substitutes.first().toLower(), expected[k].toLower()) << names[k].toStdString();
        EXPECT_EQ(substitutes.last().toLower(), expected.last().toLower()) << names[k].toStdString();
    }
}

} // namespace
} // namespace tambrelle
