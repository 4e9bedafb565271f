#include "plates/engraver/Ground.h"
#include "plates/engraver/Lathe.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/carpentry/Weave.h"
#include "plates/engraver/carpentry/Wood.h"

using namespace tambrelle::engraver;

// The pannier: a broad low basket of wicker with a handle across it and a lid in two flaps.
static const Subject subject{
    "day_360_panier", [](Plate& p) {
        ground(p, 64, 336, 300, 6);
        LatheForm body;
        body.palette = palettes::tan;
        body.lines = Lines::none;
        body.tilt = 0.36;
        const LatheSurface basket = lathe(p, {200, 288}, 96, {96, 114, 122, 124}, body);
        weave(p, wovenLathe(basket, 0.02, 0.98), {.rows = 11, .stakes = 27, .bulge = 0.32});
        plait(p, basket.ring(0.03, 0, 180), 6);
        // The far leg of the handle, the lid, the near leg.
        const Path rim = basket.ring(1);
        p.knockOut(rim, {.halo = 0, .shade = 0});
        const Point c = centroid(rim);
        const auto lid = [c](double from, double to) {
            return [c, from, to](double u, double v) {
                const Point d = direction(maths::lerp(from, to, v));
                const double r = 1 - 0.96 * u;
                return Point{c.x + 124 * r * d.x, c.y + 45 * r * d.y - 20 * (1 - r * r)};
            };
        };
        const auto lidTone = [](double from, double to) {
            return [from, to](double u, double v) {
                const Point d = direction(maths::lerp(from, to, v));
                return maths::clamp01(0.26 + (1 - u) * (0.2 * d.x + 0.16 * d.y));
            };
        };
        weave(p, {lid(180, 360), lidTone(180, 360)},
              {.rows = 9, .stakes = 22, .bulge = 0.25, .contour = 0.5});
        weave(p, {lid(180, 0), lidTone(180, 0)}, {.rows = 9, .stakes = 22, .bulge = 0.25, .contour = 0.5});
        plait(p, basket.ring(1, 180, 360), 5);
        plait(p, basket.ring(1, 0, 180), 6.5);
        // The flaps meet along a cane.
        pole(p, {{78, c.y}, {200, c.y - 21}, {322, c.y}}, 4, palettes::tan);
        // The handle, bound where it grips.
        plait(p, {{84, 214}, {88, 150}, {128, 88}, {200, 66}, {272, 88}, {312, 150}, {316, 214}}, 8);
        // Pin and loop of the near flap.
        p.contour(ellipse({200, c.y + 45}, 9, 11, 30), 2.6);
        pole(p, {{176, c.y + 53}, {226, c.y + 51}}, 3.6);
    }};
