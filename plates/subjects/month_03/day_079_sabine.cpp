// Savin, Juniperus sabina: low sprawling boughs clothed in tiny pressed scales, small blue-black berries
// nodding on short tips.

#include "plates/engraver/Ground.h"
#include "plates/engraver/Lathe.h"
#include "plates/engraver/Path.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Conifer.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_079_sabine", [](Plate& p) {
        ground(p, 70, 340, 318, 4);
        const Path main{{70, 306}, {130, 276}, {206, 236}, {284, 216}, {346, 168}};
        const Path curve = spline(main);
        struct Side {
            double at, degrees, reach;
        };
        for (const Side& s :
             {Side{0.12, -88, 120}, Side{0.26, 6, 130}, Side{0.34, -84, 150}, Side{0.52, 18, 116},
              Side{0.58, -80, 130}, Side{0.78, -86, 92}, Side{0.76, 24, 80}}) {
            const Point from = along(curve, s.at);
            const double lift = s.degrees < -40 ? 16 : -18;
            scaleTwig(
                p,
                {from, polar(from, s.degrees, s.reach * 0.5),
                 polar(polar(from, s.degrees + lift, s.reach * 0.5), s.degrees + lift * 1.4, s.reach * 0.5)},
                32, 11, 2.2, s.at < 0.4 ? palettes::bluegreen : palettes::darkleaf);
        }
        tube(p, main, {7, 6, 4.6, 3, 1.6}, {.palette = palettes::bark, .rough = 0.18});
        const Palette bloom = mix(palettes::berry, palettes::blue, 0.45);
        for (const Point& at : {Point{96, 220}, Point{128, 196}, Point{150, 236}, Point{180, 166},
                                Point{204, 190}, Point{226, 270}, Point{254, 180}, Point{268, 132},
                                Point{262, 250}, Point{300, 246}, Point{176, 292}, Point{316, 160}}) {
            stem(p, {at + Point{-6, -16}, at + Point{1, -14}, at + Point{0, -8}}, {1.6, 1.4});
            ball(p, at, 10, {.palette = bloom, .direction = -60});
        }
    }};
