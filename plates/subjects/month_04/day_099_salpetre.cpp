#include "plates/engraver/Ground.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/minerals/Crystal.h"
#include "plates/engraver/minerals/Stone.h"

using namespace tambrelle::engraver;

namespace {

// A crust of hair-fine needles along a joint from one point to another: white, thickest in its middle.
void bloom(Plate& p, Point from, Point to, double longest) {
    const int count = static_cast<int>(length(to - from) * 2.2);
    for (int k = 0; k < count; ++k) {
        const double t = p.random.uniform(), swell = std::sqrt(4 * t * (1 - t));
        const Point root = lerp(from, to, t) + Point{p.random.around(2.5), p.random.around(2.5)};
        const Point end = polar(root, -90 + p.random.normal(34),
                                longest * (0.25 + 0.75 * swell) * p.random.uniform(0.4, 1));
        const Path needle{root, lerp(root, end, 0.5) + Point{p.random.around(0.8), 0}, end};
        p.stroke(moved(needle, {0.7, 0.5}),
                 {.width = 1.2, .swell = 0, .fade = 0.5, .wobble = 0, .alpha = 0.7});
        p.stroke(needle, {.width = 1.5, .swell = 0, .fade = 0.4, .wobble = 0, .colour = Colour{0xFFFEFA}});
    }
}

// A six-sided prism with a roof at either end, as saltpetre grows from its lye.
void prism(Plate& p, Point centre, double scale, Vector3 turn) {
    std::vector<Vector3> corners;
    for (int k = 0; k < 6; ++k) {
        const Point d = direction(60.0 * k + 30);
        for (const double end : {-1.0, 1.0})
            corners.push_back({d.x, end * 3.2, d.y});
    }
    for (const double end : {-1.0, 1.0})
        for (const double side : {-0.5, 0.5})
            corners.push_back({side, end * 3.9, 0});
    crystal(p, corners, centre,
            {.palette = {0xFFFFFF, 0xE6EAE8, 0x97A3A6}, .scale = scale, .turn = turn, .clear = 0.25});
}

} // namespace

// Saltpetre: a white fur of needles that blooms from the joints of a damp cellar wall; before it the
// six-sided prisms that are boiled from it.
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
        p.castShadows(false);
        bloom(p, {92, 126}, {168, 128}, 15);
        bloom(p, {186, 126}, {190, 168}, 11);
        bloom(p, {74, 172}, {150, 172}, 20);
        bloom(p, {150, 174}, {246, 172}, 26);
        bloom(p, {96, 216}, {176, 217}, 22);
        bloom(p, {186, 217}, {286, 216}, 30);
        bloom(p, {72, 261}, {150, 262}, 24);
        bloom(p, {150, 262}, {306, 261}, 22);
        bloom(p, {72, 303}, {190, 305}, 18);
        p.castShadows(true);
        prism(p, {300, 262}, 17, {20, 14, 34});
        prism(p, {214, 276}, 15, {14, 24, -38});
        prism(p, {258, 250}, 20, {12, 20, 4});
        prism(p, {246, 302}, 14, {24, 10, 76});
        prism(p, {300, 306}, 11, {20, 30, -70});
    }};
