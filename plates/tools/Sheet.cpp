#include "plates/tools/Sheet.h"

#include <algorithm>
#include <array>

namespace tambrelle::engraver {

namespace {

using Rgb = std::array<int, 3>;

constexpr int gap = 8;

Rgb fieldOf(SheetGround ground) {
    return ground == SheetGround::day ? Rgb{237, 232, 219} : Rgb{204, 181, 140};
}

Rgb frameOf(SheetGround ground) {
    return ground == SheetGround::day ? Rgb{250, 247, 240} : Rgb{56, 41, 31};
}

/// Rec. 601 lightness.
int greyOf(const Rgb& c) {
    return (299 * c[0] + 587 * c[1] + 114 * c[2]) / 1000;
}

/// Averages the source pixels that fall on the target's one.
Rgb sample(const Picture& picture, const SheetForm& form, int height, int x, int y) {
    const int x0 = x * picture.width / form.plateWidth;
    const int x1 = std::max(x0 + 1, (x + 1) * picture.width / form.plateWidth);
    const int y0 = y * picture.height / height;
    const int y1 = std::max(y0 + 1, (y + 1) * picture.height / height);
    Rgb sum{0, 0, 0};
    for (int v = y0; v < y1; ++v)
        for (int u = x0; u < x1; ++u)
            for (std::size_t c = 0; c < 3; ++c)
                sum[c] += picture.rgb[static_cast<std::size_t>(v * picture.width + u) * 3 + c];
    for (int& value : sum)
        value /= (x1 - x0) * (y1 - y0);
    return sum;
}

void put(Picture& sheet, int x, int y, const Rgb& colour) {
    for (std::size_t c = 0; c < 3; ++c)
        sheet.rgb[static_cast<std::size_t>(y * sheet.width + x) * 3 + c] =
            static_cast<unsigned char>(colour[c]);
}

} // namespace

Picture contactSheet(const std::vector<Picture>& plates, const SheetForm& form) {
    const int count = static_cast<int>(plates.size());
    const int columns = std::max(1, std::min(form.columns, count));
    const int rows = (count + columns - 1) / columns;
    const int height = form.plateWidth * 260 / 288;
    Picture sheet{columns * (form.plateWidth + gap) + gap, rows * (height + gap) + gap, {}};
    sheet.rgb.resize(static_cast<std::size_t>(sheet.width * sheet.height) * 3);
    for (int y = 0; y < sheet.height; ++y)
        for (int x = 0; x < sheet.width; ++x)
            put(sheet, x, y, frameOf(form.ground));
    const Rgb field = fieldOf(form.ground);
    for (int i = 0; i < count; ++i) {
        const int left = gap + i % columns * (form.plateWidth + gap);
        const int top = gap + i / columns * (height + gap);
        for (int y = 0; y < height; ++y) {
            for (int x = 0; x < form.plateWidth; ++x) {
                Rgb colour = sample(plates[static_cast<std::size_t>(i)], form, height, x, y);
                for (std::size_t c = 0; c < 3; ++c)
                    colour[c] = colour[c] * field[c] / 255;
                if (form.grey)
                    colour.fill(greyOf(colour));
                put(sheet, left + x, top + y, colour);
            }
        }
    }
    return sheet;
}

} // namespace tambrelle::engraver
