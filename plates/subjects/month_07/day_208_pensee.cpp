// Pansy, Viola tricolor: faces of five unequal petals, two violet above, three yellow with dark whiskers
// below; crenate leaves.

#include "plates/engraver/Lathe.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/CompoundLeaf.h"
#include "plates/engraver/botany/Leaf.h"
#include "plates/engraver/botany/Roots.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_208_pensee", [](Plate& p) {
        const LeafKind crenated{
            .shape = shapes::ovate, .margin = crenate(5, 0.2), .veins = 4, .petiole = 0.24};
        const auto face = [&](Point at, double size) {
            struct Lobe5 {
                double degrees, length, width;
                int tint;
            };
            for (const Lobe5& l :
                 {Lobe5{-122, 0.98, 0.48, 0}, Lobe5{-58, 0.98, 0.48, 0}, Lobe5{172, 0.84, 0.4, 1},
                  Lobe5{8, 0.84, 0.4, 1}, Lobe5{90, 0.92, 0.56, 2}}) {
                const Palette tint = l.tint == 0   ? palettes::violet
                                     : l.tint == 1 ? mix(palettes::yellow, palettes::lilac, 0.35)
                                                   : palettes::yellow;
                leaf(p,
                     {polar(at, l.degrees, -3), polar(at, l.degrees, size * l.length * 0.5),
                      polar(at, l.degrees, size * l.length)},
                     {.width = size * l.width,
                      .shape = {0.2, 0.62, 0.92, 1, 0.98, 0.84, 0.4},
                      .palette = tint,
                      .veins = 0,
                      .parallel = true,
                      .midrib = 0,
                      .pucker = 0});
                if (l.tint > 0)
                    for (const double a : {-24.0, -12.0, 0.0, 12.0, 24.0})
                        p.stroke({polar(at, l.degrees + a * 0.4, size * 0.1),
                                  polar(at, l.degrees + a, size * (0.52 - 0.004 * std::fabs(a)))},
                                 {.width = 2.6, .swell = 0, .fade = 0.8, .colour = Colour(0x43204F)});
            }
            ball(p, at + Point{0, size * 0.04}, size * 0.09, {.palette = palettes::orange});
        };
        for (const auto& [x, y, a, len] : {std::tuple{200.0, 330.0, -166.0, 100.0},
                                           {200.0, 330.0, -12.0, 100.0},
                                           {200.0, 300.0, -150.0, 90.0},
                                           {200.0, 300.0, -28.0, 92.0},
                                           {200.0, 340.0, 176.0, 80.0},
                                           {200.0, 340.0, 4.0, 80.0}})
            growLeaf(p, {x, y}, a, len, 19, crenated, a < -90 ? -8 : 8);
        rootlets(p, {200, 344}, 10, 90, 100, 14);
        stem(p, {{200, 346}, {176, 260}, {136, 200}, {130, 178}}, {2.8, 2});
        stem(p, {{200, 346}, {226, 270}, {268, 220}, {278, 196}}, {2.8, 2});
        stem(p, {{200, 346}, {203, 240}, {204, 120}}, {3, 2});
        face({128, 186}, 54);
        face({280, 206}, 52);
        face({206, 104}, 62);
    }};
