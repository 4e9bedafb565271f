#include "plates/engraver/Ground.h"
#include "plates/engraver/Noise.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Vessel.h"

using namespace tambrelle::engraver;

namespace {

constexpr Palette zinc{0xF2F7FA, 0xAEBDC9, 0x55677A};

// Spangle, the frosty crystals of zinc: a sheen of about -1 ... 1 that changes from one angular patch of unit
// breadth to the next.
double spangle(double x, double y) {
    static const Noise noise(41);
    double nearest = 1e9, sheen = 0;
    for (const double dx : {-1.0, 0.0, 1.0})
        for (const double dy : {-1.0, 0.0, 1.0}) {
            const double cx = std::floor(x) + dx, cy = std::floor(y) + dy;
            const double away = maths::length(cx + 0.5 + 0.3 * noise(cx * 3.7, cy * 5.3) - x,
                                              cy + 0.5 + 0.3 * noise(cx * 5.9 + 11, cy * 2.3 + 7) - y);
            if (away < nearest) {
                nearest = away;
                sheen = 0.6 * noise(cx * 9.1 + 3, cy * 7.7 + 5);
            }
        }
    return sheen;
}

// A sheet of roofing with round corrugations, leaning upright.
void corrugatedSheet(Plate& p) {
    constexpr std::size_t rows = 30, columns = 181;
    constexpr double waves = 9;
    Patch sheet(rows, columns);
    for (std::size_t i = 0; i < rows; ++i)
        for (std::size_t j = 0; j < columns; ++j) {
            const double v = fraction(i, rows), u = fraction(j, columns);
            const double swing = maths::sin(2 * maths::pi * waves * u);
            const Point along = lerp(lerp({150, 54}, {318, 34}, u), lerp({166, 282}, {338, 272}, u), v);
            sheet.point(i, j) = along + Point{0, 4.6 * swing};
            sheet.tone(i, j) = maths::clamp01(0.36 + 0.30 * maths::cos(2 * maths::pi * waves * u + 0.6) +
                                              0.10 * spangle(u * 22, v * 20));
        }
    Path left, right;
    for (std::size_t i = 0; i < rows; ++i) {
        left.push_back(sheet.point(i, 0));
        right.push_back(sheet.point(rows - 1 - i, columns - 1));
    }
    const Path outline = joined(joined(sheet.row(0), right),
                                joined(reversed(sheet.row(static_cast<double>(rows - 1))), reversed(left)));
    p.knockOut(outline, {.shade = 0.3});
    p.wash(sheet, zinc, 0.9);
    p.hatch(sheet.transposed(), {.spacing = 2.1, .from = 0.34});
    p.contour(outline, 0.85);
    for (const double v : {0.08, 0.9}) // nails on the crests
        for (int k = 0; k < 9; k += 2)
            p.dot(lerp(lerp({150, 54}, {318, 34}, (k + 0.25) / waves),
                       lerp({166, 282}, {338, 272}, (k + 0.25) / waves), v) +
                      Point{0, 4.6},
                  1.5);
}

} // namespace

// Zinc: a pail of the bluish, frosty metal with beaded rings and a bail, before a corrugated roofing sheet.
static const Subject subject{
    "day_118_zinc", [](Plate& p) {
        ground(p, 62, 344, 296, 7);
        corrugatedSheet(p);
        const auto beads = [](double u) {
            double rise = 0;
            for (const double at : {0.16, 0.62, 0.70}) {
                const double away = (u - at) / 0.016;
                rise += away * maths::exp(-away * away);
            }
            return rise;
        };
        const Point foot{146, 304};
        tube(p, {{80, 186}, {64, 140}, {92, 94}, {146, 78}, {200, 94}, {228, 140}, {212, 186}}, 2.6,
             {.palette = palettes::iron, .spacing = 1.6});
        tube(p, {{120, 83}, {146, 78}, {172, 83}}, 7,
             {.palette = palettes::wood, .lines = Lines::along, .cutEnd = true});
        const LatheSurface pail =
            lathe(p, foot, 132, {44, 50, 57, 64},
                  {.tilt = 0.3,
                   .palette = zinc,
                   .spacing = 2.3,
                   .hatchFrom = 0.4,
                   .shade = 0.5,
                   .texture = [&](double u, double angle, double tone) {
                       return tone - 0.02 + 0.13 * spangle(angle * 5.5, u * 8) + 0.4 * beads(u);
                   }});
        mouth(p, pail, {.rim = 4, .palette = zinc, .depth = 0.7});
        for (const double u : {0.16, 0.62, 0.70})
            p.stroke(pail.ring(u, 2, 178), {.width = 0.7, .swell = 0.1, .fade = 0.1});
        for (const double degrees : {176.0, 4.0}) {
            const Point ear = pail.at(0.92, degrees);
            const Path plate = ellipse(ear + Point{degrees < 90 ? -4.0 : 4.0, 2}, 8, 10);
            p.knockOut(plate, {.halo = 0.2});
            p.flat(plate, zinc, 0.3);
            p.contour(plate, 0.8);
            p.dot(ear, 1.6);
        }
    }};
