#include "plates/engraver/Ground.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Vessel.h"
#include "plates/engraver/minerals/Block.h"

using namespace tambrelle::engraver;

// Copper: a round-bellied red kettle with an iron bail, on ingots of the same glow.
static const Subject subject{
    "day_114_cuivre", [](Plate& p) {
        ground(p, 72, 330, 294, 7);
        const CutBlockForm bar{.palette = palettes::copper,
                               .leftTone = 0.36,
                               .rightTone = 0.68,
                               .topTone = 0.12,
                               .spacing = 1.9};
        cutBlock(p,
                 {.front = {176, 286}, .left = {-88, -22}, .right = {44, -20}, .height = 24, .taper = 0.14},
                 bar);
        cutBlock(p,
                 {.front = {284, 290}, .left = {-92, -22}, .right = {44, -20}, .height = 24, .taper = 0.14},
                 bar);
        cutBlock(p,
                 {.front = {214, 310}, .left = {-92, -22}, .right = {44, -20}, .height = 24, .taper = 0.14},
                 bar);
        const double top = 152, foot = 258;
        tube(p, {{146, 168}, {138, 112}, {204, 74}, {270, 112}, {262, 168}}, 3.6,
             {.palette = palettes::iron, .spacing = 1.7});
        const LatheSurface kettle = lathe(
            p, {204, foot}, foot - top, {34, 58, 70, 72, 64, 52, 50},
            {.tilt = 0.24, .palette = palettes::copper, .spacing = 1.9, .coverage = 0.55, .hatchFrom = 0.2});
        mouth(p, kettle, {.rim = 5, .palette = palettes::copper});
        for (const double x : {146.0, 262.0}) {
            ball(p, {x, 172}, 6, {.palette = palettes::copper});
            p.stroke(arc({x, 166}, 4.5, 5, 180, 360), {.width = 2.2});
        }
    }};
