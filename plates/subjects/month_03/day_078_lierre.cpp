// Ivy, Hedera helix: five-lobed leaves with pale veins on a stem that grips old wood by hair roots; umbels
// of black berries.

#include "plates/engraver/Lathe.h"
#include "plates/engraver/Path.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/CompoundLeaf.h"
#include "plates/engraver/botany/Habit.h"

#include <vector>

using namespace tambrelle::engraver;

static const Subject subject{
    "day_078_lierre", [](Plate& p) {
        trunk(p, {176, 352}, {168, 24}, 44, {});
        const Path vine{{206, 350}, {152, 286}, {202, 214}, {150, 140}, {206, 80}, {268, 58}};
        const Path curve = spline(vine);
        for (int k = 0; k < 26; ++k) {
            const double q = 0.02 + 0.76 * k / 25.0;
            const Point at = along(curve, q);
            p.stroke({at, polar(at, angleAlong(curve, q) + (k % 2 == 0 ? 70 : -70) + p.random.around(20),
                                8 + p.random.around(2))},
                     {.width = 0.8});
        }
        tube(p, vine, {5, 4.4, 4, 3.4, 2.6, 2}, {.palette = palettes::bark, .rough = 0.12});
        const std::vector<Lobe> lobes = {{-112, 0.5}, {-56, 0.76}, {0, 1}, {56, 0.76}, {112, 0.5}};
        struct Place {
            double at, degrees, size;
        };
        for (const Place& l :
             {Place{0.08, 10, 60}, Place{0.2, 196, 64}, Place{0.34, -10, 66}, Place{0.46, 12, 62},
              Place{0.56, 190, 66}, Place{0.7, 178, 60}, Place{0.74, 26, 58}, Place{0.88, -110, 54}}) {
            const Point from = along(curve, l.at), to = polar(from, l.degrees, 26);
            stem(p, {from, lerp(from, to, 0.5) + Point{0, -4}, to}, {1.8, 1.5});
            palmateLeaf(
                p, to, l.degrees + (l.degrees < 90 ? 30 : -30), l.size,
                {.lobes = lobes, .sinus = 0.66, .teeth = 0, .palette = palettes::darkleaf, .bulge = 0.9});
        }
        const auto umbelAt = [&](Point from, double degrees) {
            const Point hub = polar(from, degrees, 42);
            const Path stalk{from, lerp(from, hub, 0.5) + Point{0, -2}, hub};
            stem(p, stalk, {2, 1.8});
            for (int k = 0; k < 15; ++k) {
                const double a = degrees - 130 + 260.0 * ((k * 7) % 15) / 14.0,
                             reach = 30 - 10.0 * (k % 3 == 0);
                const Point end = polar(hub, a, reach);
                stem(p, {hub, end}, {1, 0.9});
                ball(p, end, 7.6, {.palette = palettes::berry, .direction = a});
                p.dot(polar(end, a, 4), 1.4, sepia);
            }
        };
        umbelAt({266, 58}, 84);
        umbelAt({266, 58}, -4);
    }};
