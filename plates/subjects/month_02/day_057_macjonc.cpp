// Tuberous pea, Lathyrus tuberosus: paired leaflets with a tendril, rose-crimson pea flowers, dark tubers
// on strings.

#include "plates/engraver/Path.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/CompoundLeaf.h"
#include "plates/engraver/botany/Inflorescence.h"
#include "plates/engraver/botany/RootVegetable.h"
#include "plates/engraver/botany/Roots.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_057_macjonc", [](Plate& p) {
        const LeafKind pair{.build = LeafKind::Build::pinnate,
                            .shape = shapes::elliptic,
                            .veins = 4,
                            .petiole = 0.34,
                            .leaflets = 1,
                            .leafletWidth = 0.3,
                            .terminal = false};
        for (const Path& thread :
             {Path{{200, 250}, {160, 258}, {116, 276}}, Path{{200, 250}, {246, 258}, {292, 278}},
              Path{{200, 250}, {196, 280}, {180, 306}}, Path{{200, 250}, {220, 276}, {238, 300}}})
            tube(p, thread, {1.7, 1.2}, {.palette = palettes::root});
        const Palette skin = mix(palettes::brown, palettes::earth, 0.5);
        tuber(p, {102, 284}, {.length = 50, .width = 32, .direction = 150, .palette = skin});
        tuber(p, {302, 288}, {.length = 52, .width = 32, .direction = 30, .palette = skin});
        tuber(p, {174, 318}, {.length = 48, .width = 32, .direction = 100, .palette = skin});
        tuber(p, {244, 312}, {.length = 46, .width = 30, .direction = 76, .palette = skin});
        rootlets(p, {200, 250}, 9, 90, 120, 22);
        const Path main{{200, 252}, {208, 190}, {194, 130}, {204, 66}};
        const Path curve = spline(main);
        for (int k = 0; k < 5; ++k) {
            const double q = 0.14 + 0.19 * k, side = k % 2 == 0 ? 1 : -1;
            const Point at = along(curve, q);
            growLeaf(p, at, -90 + side * 64, 84 - 5.0 * k, 30, pair);
            tendril(p, polar(at, -90 + side * 64, 70 - 4.0 * k), -90 + side * 52,
                    {.length = 26, .turns = 1.6, .radius = 6, .hand = side > 0 ? 1 : -1});
        }
        stem(p, main, {3, 2.6, 1.6});
        const auto truss = [&](double q, double degrees, double reach) {
            const Point from = along(curve, q), tip = polar(from, degrees, reach);
            const Path stalk{from, lerp(from, tip, 0.5) + Point{0, 4}, tip};
            stem(p, stalk, {1.8, 1.4});
            raceme({.flower = peas(27, mix(palettes::rose, palettes::crimson, 0.5)),
                    .nodes = 3,
                    .from = 0.5,
                    .to = 1,
                    .perNode = 2,
                    .angle = 70,
                    .pedicel = 9,
                    .smallest = 0.8})(p, spline(stalk));
        };
        truss(0.4, -150, 104);
        truss(0.58, -34, 106);
        truss(0.98, -90, 30);
    }};
