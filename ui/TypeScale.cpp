#include "ui/TypeScale.h"

#include <QFontDatabase>
#include <QGuiApplication>
#include <QScreen>

namespace tambrelle {

namespace {

/// The resolution at which a desktop that scales no text reports its screens.
constexpr double unscaledDotsPerInch = 96;

/// By the name of the installed font, where it is known that the font's own is an alias: for that the toolkit
/// would look through all fonts, for each style anew.
QFont byInstalledName(QFont font) {
    if (const QStringList installed = QFont::substitutes(font.family()); !installed.isEmpty())
        font.setFamilies(installed + font.families().mid(1));
    return font;
}

QFont designed(TypeStyle::Design design) {
    switch (design) {
    case TypeStyle::Design::standard:
        break;
    case TypeStyle::Design::serif: {
        QFont serif(QStringLiteral("serif"));
        serif.setStyleHint(QFont::Serif);
        return serif;
    }
    case TypeStyle::Design::monospaced:
        return QFontDatabase::systemFont(QFontDatabase::FixedFont);
    case TypeStyle::Design::emoji:
        // Named first, it also gives the line its height.
        return QFont(QStringLiteral("emoji"));
    }
    return QGuiApplication::font();
}

} // namespace

double textScale() {
    const QScreen* screen = QGuiApplication::primaryScreen();
    return screen ? screen->logicalDotsPerInchY() / unscaledDotsPerInch : 1;
}

int scaledByText(int length) {
    return qRound(length * textScale());
}

QFont font(const TypeStyle& style) {
    QFont font = byInstalledName(designed(style.design));
    font.setPixelSize(scaledByText(style.size));
    font.setWeight(style.weight);
    font.setItalic(style.italic);
    font.setLetterSpacing(QFont::AbsoluteSpacing, style.tracking * textScale());
    return font;
}

} // namespace tambrelle
