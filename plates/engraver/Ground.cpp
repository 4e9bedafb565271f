#include "plates/engraver/Ground.h"

namespace tambrelle::engraver {

namespace {

void brokenLine(Plate& plate, double from, double to, double y, double width) {
    double x = from + plate.random.uniform(0, 8);
    while (x < to) {
        const double end = std::min(x + plate.random.uniform(14, 40), to);
        if (end - x > 4)
            plate.stroke({{x, y + plate.random.around(0.3)},
                          {(x + end) / 2, y + 0.2},
                          {end, y + plate.random.around(0.3)}},
                         {.width = width, .swell = 0.4, .fade = 0.4});
        x = end + plate.random.uniform(2, 7);
    }
}

} // namespace

void ground(Plate& plate, double left, double right, double y, int rows) {
    const double centre = (left + right) / 2, half = (right - left) / 2;
    constexpr Colour earth{0xCDBFA2};
    {
        const Plate::Under under(plate);
        for (int i = 0; i < rows; ++i) {
            const double f =
                std::sqrt(std::max(0.0, 1 - ((i + 0.5) / rows - 0.35) * ((i + 0.5) / rows - 0.35) / 0.5));
            brokenLine(plate, centre - half * f, centre + half * f, y + i * 2.3,
                       std::max(0.3, 0.75 - 0.08 * i));
        }
    }
    // A soft pool of shadow from nested ellipses.
    constexpr int rings = 26;
    for (int k = 0; k < rings; ++k) {
        const double q = 1.08 * (k + 1) / rings;
        plate.underwash(ellipse({centre, y + rows * 1.2}, half * q, rows * 2.2 * q), earth, 0.06);
    }
}

void grassTufts(Plate& plate, double left, double right, double y, int count) {
    for (int k = 0; k < count; ++k) {
        const double x = plate.random.uniform(left, right);
        for (int j = 0; j < 4; ++j)
            plate.stroke(spline({{x + j * 1.2, y + plate.random.around(1)},
                                 {x + j * 1.4 + plate.random.around(1.5), y - 4.5},
                                 {x + j * 1.6 + (j - 1.5) * 2.2, y - plate.random.uniform(6, 10)}},
                                5),
                         {.width = 0.6, .swell = 0, .fade = 0.8});
    }
}

void waterLines(Plate& plate, double left, double right, double y, int rows) {
    const double centre = (left + right) / 2, half = (right - left) / 2;
    {
        const Plate::Under under(plate);
        for (int i = 0; i < rows; ++i) {
            const double v = (i + 0.5) / rows * 2 - 1;
            const double f = std::sqrt(std::max(0.05, 1 - v * v));
            double x = centre - half * f + plate.random.uniform(0, 14);
            while (x < centre + half * f) {
                const double span = plate.random.uniform(18, 52), end = std::min(x + span, centre + half * f);
                const double at = y + i * 4.2;
                if (end - x > 8)
                    plate.stroke(spline({{x, at},
                                         {lerp({x, 0}, {end, 0}, 0.25).x, at - 0.8},
                                         {(x + end) / 2, at + 0.4},
                                         {lerp({x, 0}, {end, 0}, 0.75).x, at + 0.9},
                                         {end, at}},
                                        8),
                                 {.width = 0.6, .swell = 0.4, .fade = 0.4});
                x = end + plate.random.uniform(5, 16);
            }
        }
    }
    constexpr int rings = 24;
    for (int k = 0; k < rings; ++k) {
        const double q = static_cast<double>(k + 1) / rings;
        plate.underwash(ellipse({centre, y + rows * 2.0}, half * q, rows * 3.0 * q), palettes::water.middle,
                        0.045);
    }
}

} // namespace tambrelle::engraver
