#include "plates/engraver/Ground.h"
#include "plates/engraver/Light.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/minerals/Block.h"

using namespace tambrelle::engraver;

namespace {

// Needles that bristle from one spot, fanned about a direction.
void tuft(Plate& p, Point root, double degrees, double spread, double longest, int count, double thick) {
    for (int k = 0; k < count; ++k) {
        const double f = 2 * fraction(static_cast<std::size_t>(k), static_cast<std::size_t>(count)) - 1;
        const double way = degrees + spread * f + p.random.around(spread * 0.2);
        const double span = longest * (1 - 0.35 * f * f) * p.random.uniform(0.62, 1.0);
        const Point d = direction(way), side = rightOf(d) * thick * p.random.uniform(0.7, 1.2);
        const Point foot = root + rightOf(direction(degrees)) * (f * thick * 2.4);
        const Point end = foot + d * span, neck = foot + d * (span - 3.2 * thick);
        const Path lit{foot - side, neck - side, end, neck, foot},
            dark{foot, neck, end, neck + side, foot + side};
        p.knockOut(Path{foot - side, neck - side, end, neck + side, foot + side},
                   {.halo = 0.4, .shade = 0.22});
        const bool sideLit = dot(side, shadeSide) > 0;
        p.flat(sideLit ? lit : dark, palettes::silver, 0.08);
        p.flat(sideLit ? dark : lit, palettes::silver, 0.62);
        p.stroke({foot, neck, end}, {.width = 0.45, .swell = 0, .fade = 0.1});
        p.contour(Path{foot - side, neck - side, end, neck + side, foot + side}, 0.65);
    }
}

} // namespace

// Saltpetre: white needles that bloom from the damp stones of a cellar wall.
static const Subject subject{
    "day_099_salpetre", [](Plate& p) {
        ground(p, 70, 334, 304, 4);
        const Palette warm{0xDDC9AE, 0xA88D6E, 0x62503E};
        std::uint64_t seed = 3;
        const auto course = [&](double y, std::initializer_list<double> joints) {
            const std::vector<double> x(joints);
            for (std::size_t i = 0; i + 1 < x.size(); ++i)
                stone(p,
                      {{x[i] + 2, y - 44}, {x[i + 1] - 2, y - 45}, {x[i + 1] - 2, y - 2}, {x[i] + 2, y - 2}},
                      {.palette = mix(warm, palettes::stone, p.random.uniform(0, 0.6)),
                       .seed = ++seed,
                       .facets = 6,
                       .rough = 1.1,
                       .grain = 16,
                       .depth = 9,
                       .ragged = 1.3,
                       .tone = 0.08});
        };
        course(306, {70, 140, 216, 282, 334});
        course(261, {70, 108, 180, 246, 310});
        course(216, {84, 150, 214, 288});
        course(171, {70, 122, 186, 250});
        course(126, {92, 160, 222});
        tuft(p, {122, 172}, -120, 50, 44, 11, 1.7);
        tuft(p, {240, 262}, -30, 46, 66, 13, 2.1);
        tuft(p, {196, 128}, -52, 44, 52, 11, 1.8);
        tuft(p, {232, 216}, -60, 62, 92, 19, 2.5);
        tuft(p, {130, 262}, -104, 60, 62, 15, 2.1);
        tuft(p, {186, 262}, -84, 70, 80, 19, 2.4);
        tuft(p, {216, 304}, -64, 62, 44, 13, 1.8);
        tuft(p, {106, 306}, -96, 64, 38, 11, 1.7);
    }};
