#include "plates/engraver/Ground.h"
#include "plates/engraver/Lathe.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/minerals/Block.h"

using namespace tambrelle::engraver;

// Tin: bright and silvery; a lidded pewter tankard, and small ingots stamped with the assay mark.
static const Subject subject{
    "day_116_etain", [](Plate& p) {
        ground(p, 72, 330, 296, 7);
        const auto sheen = [](double, double angle, double tone) {
            return tone + 0.16 * maths::sin(angle * 5 + 0.6) - 0.06; // polished: streaks of light and dark
        };
        const LatheForm pewter{.tilt = 0.24,
                               .palette = palettes::tin,
                               .lines = Lines::along,
                               .spacing = 1.9,
                               .coverage = 0.48,
                               .hatchFrom = 0.28,
                               .texture = sheen};
        tube(p, {{244, 136}, {282, 134}, {304, 164}, {296, 206}, {268, 232}, {244, 240}},
             {5, 6.5, 6.5, 6, 5, 4.5}, {.palette = palettes::tin});
        tube(p, {{262, 234}, {278, 240}, {288, 234}}, {4, 3, 2}, {.palette = palettes::tin});
        lathe(p, {192, 284}, 14, {74, 75, 68, 62}, pewter);
        const LatheSurface mug = lathe(p, {192, 272}, 138, {62, 60, 58, 56, 55, 54, 54}, pewter);
        for (const double u : {0.06, 0.10, 0.5, 0.54, 0.9}) {
            const Path ring = mug.ring(u, 0, 180, 1.2);
            p.stroke(ring, {.width = 2.6, .swell = 0.02, .fade = 0.02, .colour = Colour{0xEDEFEC}});
            p.stroke(moved(ring, {0, 1.6}), {.width = 0.9, .swell = 0.05, .fade = 0.05});
        }
        const Point lid{192, 138};
        lathe(p, lid, 34, {60, 60, 57, 46, 30, 16, 9}, pewter);
        lathe(p, lid + Point{0, -32}, 20, {5, 4, 8, 9.5, 7, 1}, pewter);
        tube(p, {{240, 140}, {258, 126}, {264, 106}}, {5, 5, 6.5}, {.palette = palettes::tin});
        const CutBlockForm bar{
            .palette = palettes::tin, .leftTone = 0.36, .rightTone = 0.68, .topTone = 0.05, .spacing = 1.9};
        for (const Box& b :
             {Box{.front = {128, 300}, .left = {-58, -16}, .right = {40, -17}, .height = 20, .taper = 0.18},
              Box{.front = {268, 314},
              .left = {-66, -17},
              .right = {46, -19},
              .height = 22,
              .taper = 0.18}}) {
            cutBlock(p, b, bar);
            const Point seal = b.at(0.5, 0.5, 1);
            p.contour(ellipse(seal, 13, 5.5), 0.6);
            p.contour(ellipse(seal, 10, 4), 0.4);
            p.stroke({seal + Point{-5, 0}, seal + Point{5, 0}}, {.width = 1.1});
            p.stroke({seal + Point{0, -3}, seal + Point{0, 3}}, {.width = 1.1});
        }
    }};
