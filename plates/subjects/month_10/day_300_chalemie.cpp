#include "plates/engraver/Face.h"
#include "plates/engraver/Lathe.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/carpentry/Cooperage.h"
#include "plates/engraver/carpentry/Iron.h"

using namespace tambrelle::engraver;

// The shawm: a straight pipe of turned wood that flares to a wide bell, seven finger holes, a reed in its
// staple.
static const Subject subject{
    "day_300_chalemie", [](Plate& p) {
        const Placement lie{{112, 280}, -42};
        LatheForm pear;
        pear.direction = lie.degrees;
        pear.tilt = -0.34;
        pear.palette = palettes::bay;
        pear.lines = Lines::along;
        pear.spacing = 1.7;
        const LatheSurface pipe =
            lathe(p, lie.origin, 240, {44, 29, 20, 16, 14, 13, 12.4, 11.8, 11.4, 11, 10.6}, pear);
        // Into the bell.
        const Path bell = pipe.ring(0);
        p.knockOut(bell, {.halo = 0.2, .shade = 0});
        p.flat(bell, palettes::wood, 0.25);
        p.contour(bell, 1.1);
        const Path bore = pipe.ring(0, 0, 360, -6);
        face(p, bore,
             {.tone = 0.85,
              .palette = palettes::darkwood,
              .lines = 48,
              .contour = 0.9,
              .crossed = true,
              .gradient = -0.25,
              .halo = 0});
        hoop(p, pipe, 0.115, {.breadth = 7, .palette = palettes::brass, .rivets = false});
        hoop(p, pipe, 0.30, {.breadth = 5, .palette = palettes::brass, .rivets = false});
        hoop(p, pipe, 0.955, {.breadth = 9, .palette = palettes::brass, .rivets = false});
        for (int k = 0; k < 7; ++k) {
            const Point at = pipe.at(0.40 + 0.075 * k, 96);
            const Path hole = turned(ellipse(at, 4.6, 3.6, 24), lie.degrees, at);
            p.knockOut(hole, {.halo = 0.2, .shade = 0});
            p.flat(hole, palettes::darkwood, 1);
            p.ink(hole, sepia, 0.85);
            p.contour(hole, 0.7);
        }
        const double span = length(Point{pipe.axis.x, pipe.axis.y}) * pipe.length;
        ferrule(p, lie.at(span - 2, 0), lie.at(span + 12, 0), {11, 12, 9, 5}, palettes::brass);
        tube(p, lie.at({{span + 8, 0}, {span + 30, 0}}), {2.6, 2.2}, {.palette = palettes::brass});
        const Path reed = lie.at({{span + 22, -2.4},
                                  {span + 34, -4},
                                  {span + 58, -9},
                                  {span + 60, 0},
                                  {span + 58, 9},
                                  {span + 34, 4},
                                  {span + 22, 2.4}});
        face(p, reed, {.tone = 0.25, .palette = palettes::straw, .lines = lie.degrees, .contour = 0.9});
        for (const double q : {25.0, 28.0, 31.0})
            p.stroke(lie.at({{span + q, -3.4}, {span + q, 3.4}}), Pen{.width = 1.1, .swell = 0, .fade = 0});
    }};
