#pragma once

namespace tambrelle::engraver {

/// Linear steps between 0 and 1 of the stored (sRGB) channels; the watercolours are mixed there, as on paper.
struct Colour {
    float r = 1;
    float g = 1;
    float b = 1;

    constexpr Colour() = default;
    constexpr Colour(double red, double green, double blue)
        : r(static_cast<float>(red)), g(static_cast<float>(green)), b(static_cast<float>(blue)) {}
    /// From 0xRRGGBB.
    constexpr Colour(int hex)
        : r(static_cast<float>((hex >> 16) & 255) / 255.0F),
          g(static_cast<float>((hex >> 8) & 255) / 255.0F),
          b(static_cast<float>(hex & 255) / 255.0F) {}
};

constexpr Colour mix(Colour a, Colour b, double t) {
    const auto k = static_cast<float>(t);
    Colour c;
    c.r = a.r + (b.r - a.r) * k;
    c.g = a.g + (b.g - a.g) * k;
    c.b = a.b + (b.b - a.b) * k;
    return c;
}

inline constexpr Colour white{1, 1, 1};
/// The only ink: a warm sepia, never black.
inline constexpr Colour sepia{0x33241A};

/// A watercolour: its light, middle and dark stage.
struct Palette {
    Colour light;
    Colour middle;
    Colour dark;
};

/// The colour of a wash for a tone from 0 (paper white highlight) to 1 (deep shade). Tones below about
/// `highlight` stay near paper white.
Colour ramp(const Palette& palette, double tone, double highlight = 0.10);

/// Two palettes mixed stage by stage.
constexpr Palette mix(const Palette& a, const Palette& b, double t) {
    return {mix(a.light, b.light, t), mix(a.middle, b.middle, t), mix(a.dark, b.dark, t)};
}

namespace palettes {
// Leaves and stems.
inline constexpr Palette leaf{0xC9CF96, 0x8FA35C, 0x4D6638}, leafy{0xD6D79A, 0xA3AD5C, 0x66743A},
    bluegreen{0xC3D0B4, 0x86A387, 0x496A58}, darkleaf{0xA9BA86, 0x5F7F4C, 0x2F4B2C},
    oldleaf{0xD8CF94, 0xA89B55, 0x6B6232}, greygreen{0xD9DECB, 0xA9B49A, 0x6C7A66},
    autumn{0xF0C98A, 0xCF8440, 0x7E4420}, stem{0xD2D3A0, 0x93A062, 0x57663A},
    redstem{0xE2B6A2, 0xA9604F, 0x6A2E2A}, straw{0xF4E3B0, 0xD6B368, 0x8A6830},
    burr{0xE6DFA6, 0xB7AB5C, 0x75692F};
// Bark, wood, roots, earth.
inline constexpr Palette bark{0xD9C4A0, 0xA3835C, 0x5F4632}, wood{0xECD9B0, 0xC49F68, 0x7D5A36},
    darkwood{0xC9A67A, 0x8B6238, 0x4A301A}, root{0xF0E2C4, 0xD3B78A, 0x8A6B48},
    earth{0xC9A47C, 0x7C5636, 0x3B2413}, birch{0xFBFAF6, 0xE3DFD6, 0x99928A},
    terracotta{0xEBB890, 0xC37A4C, 0x7A4024};
// Flowers and fruit.
inline constexpr Palette whiteflower{0xFFFFFF, 0xEEF0EA, 0xB9BDB6}, cream{0xFFFBEA, 0xF3E6BC, 0xB9A06A},
    yellow{0xFBF0B4, 0xF0CF55, 0xB48A26}, orange{0xFBD596, 0xF0A03C, 0xB5621C},
    carrot{0xF9CF94, 0xE38F42, 0xA9541E}, red{0xF2B09A, 0xCF4B38, 0x7D2019},
    scarlet{0xF8B296, 0xDC4226, 0x8C1D12}, crimson{0xE5A0AC, 0xB02C50, 0x621430},
    rose{0xFBE3E2, 0xEBA5AE, 0xB8546A}, pink{0xFBE9EA, 0xF0BCC4, 0xC27786},
    magenta{0xF3C6DE, 0xCC5E9C, 0x7E2A5E}, lilac{0xEFE4F4, 0xC6AEDB, 0x8064A4},
    violet{0xDFCCEA, 0xA884C6, 0x63438A}, purple{0xD2B2D8, 0x8B4F98, 0x4C2458},
    grape{0xC9AED0, 0x7A5A8C, 0x3C2B52}, plum{0xC4B6D2, 0x6C5584, 0x33254C},
    blue{0xCFDFF5, 0x7BA2DA, 0x36599A}, skyblue{0xE2EDF8, 0xA4C4E8, 0x5580B8},
    berry{0x9DA4B8, 0x46506E, 0x1C2338}, beet{0xD9A0B0, 0x9A3A58, 0x4A1428};
// Nuts, coats, horn.
inline constexpr Palette chestnut{0xE0A878, 0x8E4726, 0x47200F}, brown{0xD8A878, 0x99592F, 0x4F2A17},
    bay{0xE0B88C, 0xA5703F, 0x5A3620}, fawn{0xF0D6AE, 0xCFA06A, 0x875A34}, tan{0xF2E2C4, 0xD8B98A, 0x96744A},
    ginger{0xF5CFA0, 0xD98F4A, 0x8E4E20}, dun{0xDCCDB4, 0xA8957A, 0x5E5040},
    black{0xA8A29C, 0x5E5853, 0x2B2725}, grey{0xEFEEEC, 0xC2BFBA, 0x7A7672},
    darkgrey{0xC9C6C2, 0x8A8682, 0x4A4744}, horn{0xEFE6D2, 0xCBB894, 0x86714F},
    cray{0xCDB79A, 0x8A6B4C, 0x4A3628}, fleece{0xFFFDF6, 0xEFE7D4, 0xB4A68A},
    silver{0xF6F8F9, 0xC6CED2, 0x768188};
// Metal, stone, minerals.
inline constexpr Palette iron{0xDFE1E2, 0x9AA2A8, 0x4F575E}, steel{0xEFF2F4, 0xB4BEC6, 0x5E6A74},
    brass{0xF8E6A8, 0xD0A54C, 0x80591E}, copper{0xF9D7B8, 0xCF8550, 0x7A3F1E},
    lead{0xB9C0CA, 0x747E8C, 0x3A424E}, tin{0xF4F5F3, 0xCBCEC9, 0x888C88}, gold{0xFDF0B0, 0xE0B84A, 0x93691C},
    mercury{0xFBFCFD, 0xB9C2CA, 0x434C55}, stone{0xECE9E4, 0xBDB6AE, 0x77706A},
    chalk{0xFDFBF5, 0xE8E2D4, 0xA79F8E}, sandstone{0xF4DDB4, 0xD7AE78, 0x93683C},
    slate{0xC4CBD3, 0x7F8894, 0x3E454F}, clay{0xDDC3A8, 0xB08D6C, 0x6C4E38},
    coal{0xC9CDD2, 0x6A6A6E, 0x1F1D1E}, sulphur{0xFCF6BD, 0xEFDB58, 0xB19A2C},
    brick{0xE8B79C, 0xB9694A, 0x703422}, water{0xE6F0F2, 0xB4CDD4, 0x6E93A0},
    glass{0xFFFFFF, 0xE3EBE6, 0x9FB3AC}, flame{0xFFF4B8, 0xF7B84A, 0xD0621E};
} // namespace palettes

} // namespace tambrelle::engraver
