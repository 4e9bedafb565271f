// Sweet violet, Viola odorata: heart leaves from the ground, nodding flowers with two petals up, two beards
// to the sides and a broad lip drawn out behind into a spur.

#include "plates/engraver/Path.h"
#include "plates/engraver/Sheet.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Leaf.h"
#include "plates/engraver/botany/Roots.h"
#include "plates/engraver/botany/RoundLeaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_158_violette", [](Plate& p) {
        rootlets(p, {200, 338}, 16, 90, 130, 24);
        const auto heart = [&](const Path& stalk, double degrees, double size) {
            stem(p, stalk, {2.6, 2.2});
            roundLeaf(p, stalk.back(), degrees, size,
                      {.breadth = 0.62,
                       .bay = 0.36,
                       .point = 0.55,
                       .palette = palettes::leaf,
                       .teeth = 44,
                       .toothHeight = 2.2});
        };
        heart({{196, 334}, {160, 290}, {128, 250}}, -164, 70);
        heart({{204, 334}, {240, 290}, {272, 250}}, -16, 70);
        const auto violet = [&](const Path& stalk, int side, double size) {
            stem(p, stalk, {2.2, 1.8}, mix(palettes::stem, palettes::purple, 0.3));
            const Point at = stalk.back();
            const Palette hue = palettes::violet;
            const auto petal = [&](double degrees, double reach, double width, double bend) {
                const Point tip = polar(at, degrees, reach * size);
                const Point bow = rightOf(direction(degrees)) * bend;
                leaf(p, {at, lerp(at, tip, 0.5) + bow, tip},
                     {.width = width * size,
                      .shape = {0.3, 0.62, 0.9, 1, 0.92, 0.6, 0},
                      .palette = hue,
                      .veins = 0,
                      .parallel = true,
                      .contour = 0.8,
                      .midrib = 0.5,
                      .coverage = 0.4});
            };
            tube(
                p,
                {at, polar(at, side > 0 ? -150 : -30, 15 * size), polar(at, side > 0 ? -172 : -8, 25 * size)},
                {5 * size, 4.4 * size, 3 * size}, {.palette = hue});
            petal(-112, 40, 15, -2);
            petal(-68, 40, 15, 2);
            petal(172, 36, 13, -4);
            petal(8, 36, 13, 4);
            petal(90, 44, 20, 0);
            for (const double a : {74.0, 90.0, 106.0})
                p.stroke({polar(at, a, 6 * size), polar(at, a, 24 * size)}, {.width = 1.2, .swell = 0});
            const Path eye = ellipse(at + Point{0, 2}, 5.4 * size, 6 * size, 24);
            p.knockOut(eye, {.halo = 0.2, .shade = 0});
            p.flat(eye, palettes::whiteflower, 0.1);
            p.flat(ellipse(at + Point{0, 3}, 2.8 * size, 3.4 * size, 20), palettes::orange, 0.4);
            p.contour(eye, 0.7);
        };
        violet({{199, 334}, {166, 230}, {112, 124}, {104, 108}, {112, 114}}, 1, 0.95);
        violet({{203, 334}, {240, 240}, {288, 138}, {298, 120}, {288, 124}}, -1, 0.95);
        violet({{201, 334}, {206, 220}, {192, 96}, {196, 76}, {204, 86}}, 1, 1.15);
        heart({{198, 336}, {180, 306}, {160, 296}}, 164, 66);
        heart({{202, 336}, {222, 306}, {242, 296}}, 16, 66);
        heart({{200, 338}, {202, 300}, {200, 268}}, 78, 58);
    }};
