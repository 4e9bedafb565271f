#include "plates/engraver/Face.h"
#include "plates/engraver/Ground.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/minerals/Crystal.h"
#include "plates/engraver/minerals/Heap.h"

using namespace tambrelle::engraver;

namespace {

// A cube of salt; `steps` hollow steps sink into the face towards the viewer's left, as hopper crystals grow.
void cube(Plate& p, Point centre, double scale, Vector3 turn, int steps) {
    const CrystalForm form{.palette = {0xFFFFFF, 0xCBD8E1, 0x70879A},
                           .scale = scale,
                           .turn = turn,
                           .tone = -0.14,
                           .contrast = 0.85,
                           .spacing = 2.2,
                           .clear = 0.22};
    crystal(p, crystals::cuboid(1, 1, 1), centre, form);
    for (int k = 1; k <= steps; ++k) {
        const double a = 1 - 0.19 * k, b = a - 0.07, sink = 1 - 0.10 * (k - 1), sunk = sink - 0.10;
        const auto at = [&](double x, double y, double z) { return crystalPoint({x, y, z}, centre, form); };
        const Path outer{at(-a, -a, sink), at(a, -a, sink), at(a, a, sink), at(-a, a, sink)};
        const Path floor{at(-b, -b, sunk), at(b, -b, sunk), at(b, b, sunk), at(-b, b, sunk)};
        const Plate::Clip clip(p, outer);
        // The walls of the step: those to the upper left lie in shade.
        face(p, {outer[0], outer[1], floor[1], floor[0]},
             {.tone = 0.5, .palette = form.palette, .spacing = 1.7, .contour = 0.45, .halo = 0});
        face(p, {outer[0], floor[0], floor[3], outer[3]},
             {.tone = 0.6, .palette = form.palette, .spacing = 1.7, .contour = 0.45, .halo = 0});
        face(p, {outer[1], outer[2], floor[2], floor[1]},
             {.tone = 0.12, .palette = form.palette, .contour = 0.45, .halo = 0});
        face(p, {outer[3], floor[3], floor[2], outer[2]},
             {.tone = 0.06, .palette = form.palette, .contour = 0.45, .halo = 0});
        face(p, floor, {.tone = 0.24, .palette = form.palette, .contour = 0.6, .halo = 0});
    }
}

} // namespace

// Salt: clear cubes, their faces sunk in steps, and a heap of the white grains.
static const Subject subject{"day_112_sel", [](Plate& p) {
                                 ground(p, 66, 336, 298, 6);
                                 const ReliefSurface grains = heap(p, {246, 300}, 94, 104, 0.7,
                                                                   {.palette = {0xFFFFFF, 0xE6EAEC, 0x98A4AC},
                                                                    .seed = 4,
                                                                    .rough = 0.9,
                                                                    .grain = 5,
                                                                    .depth = 42,
                                                                    .ragged = 1.4,
                                                                    .tone = -0.04});
                                 const Bounds b = boundsOf(grains.outline);
                                 for (int k = 0; k < 240; ++k) {
                                     const double x = p.random.uniform(b.left, b.right);
                                     const Point at{x, p.random.uniform(b.top, b.bottom)};
                                     if (!grains.covers(at))
                                         continue;
                                     const double s = p.random.uniform(1.1, 2.4),
                                                  way = p.random.uniform(0, 90);
                                     Path grain;
                                     for (int i = 0; i < 4; ++i)
                                         grain.push_back(polar(at, way + 90 * i, s));
                                     p.flat(grain, white, 0.9);
                                     p.contour(grain, 0.4);
                                 }
                                 cube(p, {150, 172}, 50, {-20, 26, 5}, 4);
                                 cube(p, {106, 262}, 34, {-22, 22, -8}, 3);
                                 cube(p, {180, 270}, 34, {-20, 34, 3}, 3);
                                 cube(p, {142, 304}, 13, {-24, 30, 20}, 1);
                                 cube(p, {222, 308}, 10, {-24, 50, -10}, 0);
                                 cube(p, {74, 304}, 9, {-24, 20, -20}, 0);
                             }};
