#include "platform/freedesktop/EmojiFont.h"

#include <QFont>
#include <QFontDatabase>
#include <QStringList>

#include <fontconfig/fontconfig.h>
#include <memory>
#include <utility>

namespace tambrelle {

namespace {

struct Destroy {
    void operator()(FcPattern* pattern) const { FcPatternDestroy(pattern); }
};
using Pattern = std::unique_ptr<FcPattern, Destroy>;

/// The installed family that stands for `name`, which may be a generic name; `name` itself where there is
/// none. The toolkit would tell it too, but sorts every font and loads one to do so.
QString installedFamily(const QString& name) {
    const Pattern wanted(FcPatternCreate());
    const QByteArray text = name.toUtf8();
    FcPatternAddString(wanted.get(), FC_FAMILY, reinterpret_cast<const FcChar8*>(text.constData()));
    FcConfigSubstitute(nullptr, wanted.get(), FcMatchPattern);
    FcDefaultSubstitute(wanted.get());
    FcResult result = FcResultNoMatch;
    const Pattern found(FcFontMatch(nullptr, wanted.get(), &result));
    FcChar8* family = nullptr;
    if (!found || FcPatternGetString(found.get(), FC_FAMILY, 0, &family) != FcResultMatch)
        return name;
    return QString::fromUtf8(reinterpret_cast<const char*>(family));
}

/// Fontconfig's.
const QString genericEmoji = QStringLiteral("emoji");

} // namespace

QString emojiFamily() {
    static const QString family = installedFamily(genericEmoji);
    return family;
}

void preferEmojiFont() {
    static bool preferred = false;
    if (std::exchange(preferred, true))
        return;
    QFont::insertSubstitution(genericEmoji, emojiFamily());
    const QStringList used{QFontDatabase::systemFont(QFontDatabase::GeneralFont).family(),
                           QFontDatabase::systemFont(QFontDatabase::FixedFont).family(),
                           QStringLiteral("serif")};
    for (const QString& name : used) {
        // A generic name is no font of its own: without the one that it stands for, the emoji font's digits
        // would win.
        const QString meant = installedFamily(name);
        QFont::insertSubstitutions(name, {meant, emojiFamily()});
        QFont::insertSubstitution(meant, emojiFamily());
    }
}

} // namespace tambrelle
