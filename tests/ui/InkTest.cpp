#include "ui/Ink.h"
#include "ui/Palette.h"

#include <QColor>

#include <array>
#include <cmath>
#include <gtest/gtest.h>

namespace tambrelle {
namespace {

double linear(double component) {
    return component <= 0.04045 ? component / 12.92 : std::pow((component + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& color) {
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

QColor over(const QColor& ink, const QColor& ground) {
    const double opacity = ink.alphaF();
    const auto mixed = [opacity](double above, double below) {
        return static_cast<float>(opacity * above + (1 - opacity) * below);
    };
    return QColor::fromRgbF(mixed(ink.redF(), ground.redF()), mixed(ink.greenF(), ground.greenF()),
                            mixed(ink.blueF(), ground.blueF()));
}

double contrast(const QColor& ink, const QColor& ground) {
    const double one = luminance(over(ink, ground)) + 0.05;
    const double other = luminance(ground) + 0.05;
    return std::max(one, other) / std::min(one, other);
}

constexpr std::array textInks{
    std::pair{Ink::primary, "primary"},   std::pair{Ink::secondary, "secondary"},
    std::pair{Ink::tertiary, "tertiary"}, std::pair{Ink::quaternary, "quaternary"},
    std::pair{Ink::red, "red"},           std::pair{Ink::green, "green"},
    std::pair{Ink::blue, "blue"},         std::pair{Ink::focus, "focus"},
};

TEST(PaletteTest, HasTheFiveColours) {
    EXPECT_EQ(Palette::parchment, QColor(237, 232, 219));
    EXPECT_EQ(Palette::mahogany, QColor(56, 41, 31));
    EXPECT_EQ(Palette::agedTan, QColor(204, 181, 140));
    EXPECT_EQ(Palette::brass, QColor(140, 112, 71));
    EXPECT_EQ(Palette::nightInk, QColor(237, 227, 204));
}

TEST(InkTest, MapsTheRolesOfEachTheme) {
    const QPalette light = panelPalette(AppTheme::light);
    EXPECT_EQ(color(light, Ink::background), Palette::parchment);
    EXPECT_EQ(color(light, Ink::pictureField), Palette::parchment);
    EXPECT_NEAR(color(light, Ink::primary).alphaF(), 0.85, 0.001);
    EXPECT_EQ(color(light, Ink::primary).rgb(), QColor(Qt::black).rgb());
    const QPalette night = panelPalette(AppTheme::sepiaNight);
    EXPECT_EQ(color(night, Ink::background), Palette::mahogany);
    EXPECT_EQ(color(night, Ink::pictureField), Palette::agedTan);
    EXPECT_EQ(color(night, Ink::primary), Palette::nightInk);
    for (const QPalette& palette : {light, night}) {
        QColor outline = color(palette, Ink::pictureOutline);
        EXPECT_NEAR(outline.alphaF(), 0.5, 0.003);
        outline.setAlpha(255);
        EXPECT_EQ(outline, Palette::brass);
    }
}

TEST(InkTest, IsTheSameInEveryColourGroup) {
    for (const AppTheme theme : allCases<AppTheme>()) {
        const QPalette palette = panelPalette(theme);
        for (const QPalette::ColorRole role : {QPalette::Window, QPalette::WindowText, QPalette::Text}) {
            EXPECT_EQ(palette.color(QPalette::Inactive, role), palette.color(QPalette::Active, role));
            EXPECT_EQ(palette.color(QPalette::Disabled, role), palette.color(QPalette::Active, role));
        }
    }
}

TEST(InkTest, EveryTextCanBeRead) {
    constexpr double readable = 4.5;
    for (const AppTheme theme : allCases<AppTheme>()) {
        const QPalette palette = panelPalette(theme);
        for (const auto& [ink, name] : textInks) {
            const double measured = contrast(color(palette, ink), color(palette, Ink::background));
            const std::string key = std::string(rawValue(theme)) + "_" + name;
            ::testing::Test::RecordProperty(key, std::to_string(measured));
            std::printf("%s %.2f\n", key.c_str(), measured);
            EXPECT_GE(measured, readable) << key;
        }
    }
}

TEST(InkTest, MoreContrastIsMoreForEveryText) {
    constexpr double readableByMost = 7;
    for (const AppTheme theme : allCases<AppTheme>()) {
        const QPalette normal = panelPalette(theme);
        const QPalette high = panelPalette(theme, Contrast::high);
        const QColor ground = color(high, Ink::background);
        EXPECT_EQ(ground, color(normal, Ink::background));
        for (const auto& [ink, name] : textInks) {
            EXPECT_GE(contrast(color(high, ink), ground), readableByMost) << rawValue(theme) << " " << name;
            EXPECT_GT(contrast(color(high, ink), ground), contrast(color(normal, ink), ground))
                << rawValue(theme) << " " << name;
        }
    }
}

TEST(InkTest, FainterStylesAreFainter) {
    for (const AppTheme theme : allCases<AppTheme>()) {
        for (const Contrast wanted : {Contrast::normal, Contrast::high}) {
            const QPalette palette = panelPalette(theme, wanted);
            const QColor ground = color(palette, Ink::background);
            double last = contrast(color(palette, Ink::primary), ground);
            for (const Ink ink : {Ink::secondary, Ink::tertiary, Ink::quaternary, Ink::divider}) {
                const double next = contrast(color(palette, ink), ground);
                EXPECT_LT(next, last);
                last = next;
            }
        }
    }
}

} // namespace
} // namespace tambrelle
