#pragma once

#include <QFont>

#include <cstdint>

namespace tambrelle {

/// How a piece of text is set, in logical pixels at a text scale of 100 %.
struct TypeStyle {
    enum class Design : std::uint8_t { standard, serif, monospaced, emoji };

    int size = 13;
    QFont::Weight weight = QFont::Normal;
    Design design = Design::standard;
    bool italic = false;
    double tracking = 0; ///< added after each letter

    bool operator==(const TypeStyle&) const = default;
};

/// How much larger than usual the desktop sets text, 1 when it doesn't; where the desktop enlarges
/// everything, its device pixel ratio has done so already and this stays 1.
[[nodiscard]] double textScale();

/// A length that grows with the text, in whole logical pixels.
[[nodiscard]] int scaledByText(int length);

/// The desktop's own font, or fontconfig's serif, monospaced or emoji one, in the style.
[[nodiscard]] QFont font(const TypeStyle& style);

/// Every style of the panel.
namespace TypeScale {

using Design = TypeStyle::Design;

inline constexpr TypeStyle body{.size = 13};
inline constexpr TypeStyle subheadline{.size = 11};
inline constexpr TypeStyle subheadlineMedium{.size = 11, .weight = QFont::Medium};
inline constexpr TypeStyle caption{.size = 10};
inline constexpr TypeStyle smallCaption{.size = 10};
inline constexpr TypeStyle secondTitle{.size = 17, .weight = QFont::Medium};

inline constexpr TypeStyle navigation{.size = 13, .weight = QFont::DemiBold};
inline constexpr TypeStyle today{
    .size = 10, .weight = QFont::DemiBold, .design = Design::serif, .tracking = 1.5};
inline constexpr TypeStyle backToToday{.size = 11, .weight = QFont::Medium};

inline constexpr TypeStyle monthName{.size = 20, .weight = QFont::Bold, .tracking = 2};
inline constexpr TypeStyle monthMeaning{.size = 12, .design = Design::serif, .italic = true};
inline constexpr TypeStyle monthEmoji{.size = 40, .design = Design::emoji};
inline constexpr TypeStyle fullDate{.size = 16, .weight = QFont::DemiBold};

inline constexpr TypeStyle decimalTime{.size = 28, .weight = QFont::Bold, .design = Design::monospaced};
inline constexpr TypeStyle standardTime{.size = 18, .design = Design::monospaced};

inline constexpr TypeStyle pictureEmoji{.size = 80, .design = Design::emoji};
inline constexpr TypeStyle sectionHeading{.size = 10, .weight = QFont::DemiBold, .tracking = 1};
inline constexpr TypeStyle eventEmoji{.size = 16, .design = Design::emoji};
inline constexpr TypeStyle dayCount{.size = 18, .weight = QFont::Bold};
inline constexpr TypeStyle slogan{.size = 10, .design = Design::serif, .italic = true};

} // namespace TypeScale
} // namespace tambrelle
