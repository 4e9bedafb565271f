#include "plates/engraver/Face.h"
#include "plates/engraver/Ground.h"
#include "plates/engraver/Lathe.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/minerals/Block.h"

using namespace tambrelle::engraver;

namespace {

// Spangle: the frosty crystals of zinc, angular patches each of its own sheen.
void spangle(Plate& p, const Path& outline, int count, double size) {
    const Plate::Clip clip(p, outline);
    const Bounds b = boundsOf(outline);
    for (int k = 0; k < count; ++k) {
        const double x = p.random.uniform(b.left, b.right);
        const Point at{x, p.random.uniform(b.top, b.bottom)};
        const double way = p.random.uniform(0, 180), tone = p.random.uniform(0.08, 0.42);
        Path patch;
        for (int i = 0; i < 6; ++i)
            patch.push_back(polar(at, 60.0 * i + p.random.around(20), size * p.random.uniform(0.6, 1.3)));
        face(p, patch,
             {.tone = tone,
              .palette = {0xF6FAFC, 0xB9C6D0, 0x66788A},
              .lines = way,
              .spacing = 2.4,
              .coverage = 0.4,
              .contour = 0.2,
              .halo = 0,
              .wobble = 0.05});
    }
}

} // namespace

// Zinc: rolled sheet, bluish, frosted with angular crystals; the roll half undone.
static const Subject subject{
    "day_118_zinc", [](Plate& p) {
        const Palette zinc{0xF2F7FA, 0xB2C0CB, 0x5C6D7C};
        ground(p, 66, 336, 294, 7);
        // The sheet comes forward from under the roll and its free corner curls up.
        const Path sheet = joined(
            joined(Path{{110, 206}, {266, 154}}, spline({{266, 154}, {300, 196}, {320, 232}, {330, 252}}, 6)),
            joined(Path{{330, 252}, {190, 312}},
                   spline({{190, 312}, {164, 280}, {136, 244}, {110, 206}}, 6)));
        face(p, sheet, {.tone = 0.2, .palette = zinc, .shade = 0.35});
        spangle(p, sheet, 240, 20);
        p.contour(sheet, 0.9);
        const Path edge = band({{190, 312}, {330, 252}}, {{330, 255.5}, {190, 315.5}});
        p.ink(edge);
        // The roll.
        const LatheSurface roll =
            lathe(p, {268, 132}, 172, 38,
                  {.direction = 161.5, .tilt = 0.42, .palette = zinc, .lines = Lines::along, .shade = 0.45});
        const Path end = roll.ring(1);
        p.knockOut(end, {.halo = 0, .shade = 0});
        p.flat(end, zinc, 0.75);
        // The windings of the sheet, edge on.
        for (int k = 0; k < 7; ++k) {
            const Path winding = roll.ring(1, 0, 360, -4.6 * k);
            p.stroke(winding, {.width = 2.2, .swell = 0.02, .fade = 0.02, .colour = Colour{0xEAF0F4}});
            p.stroke(moved(winding, {0.8, 1}), {.width = 0.9, .swell = 0.02, .fade = 0.02});
        }
        const Path hollow = roll.ring(1, 0, 360, -31);
        p.ink(hollow, sepia, 0.9);
        p.contour(end, 0.9);
    }};
