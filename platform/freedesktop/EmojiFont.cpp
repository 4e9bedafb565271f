#include "platform/freedesktop/EmojiFont.h"

#include <QFont>
#include <QFontDatabase>
#include <QFontInfo>
#include <QStringList>

#include <utility>

namespace tambrelle {

QString emojiFamily() {
    // Fontconfig's generic name.
    static const QString family = QFontInfo(QFont(QStringLiteral("emoji"))).family();
    return family;
}

void preferEmojiFont() {
    static bool preferred = false;
    if (std::exchange(preferred, true))
        return;
    const QStringList used{QFontDatabase::systemFont(QFontDatabase::GeneralFont).family(),
                           QFontDatabase::systemFont(QFontDatabase::FixedFont).family(),
                           QStringLiteral("serif")};
    for (const QString& name : used) {
        // A generic name is no font of its own: without the one that it stands for, the emoji font's digits
        // would win.
        const QString meant = QFontInfo(QFont(name)).family();
        QFont::insertSubstitutions(name, {meant, emojiFamily()});
        QFont::insertSubstitution(meant, emojiFamily());
    }
}

} // namespace tambrelle
