// Garlic, Allium sativum: a white head of cloves streaked with purple, flat leaves, separate cloves beside
// it.

#include "plates/engraver/Ground.h"
#include "plates/engraver/Lathe.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Leaf.h"
#include "plates/engraver/botany/Roots.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_297_ail", [](Plate& p) {
        const Palette skin = mix(palettes::whiteflower, palettes::lilac, 0.3);
        for (const Path& spine :
             {Path{{196, 150}, {170, 110}, {110, 90}, {60, 120}},
              Path{{204, 150}, {232, 100}, {290, 76}, {340, 106}}, Path{{198, 150}, {184, 96}, {146, 46}},
              Path{{203, 150}, {218, 96}, {256, 40}}})
            leaf(p, spine,
                 {.width = 8,
                  .shape = shapes::linear,
                  .palette = palettes::bluegreen,
                  .veins = 0,
                  .parallel = true});
        stem(p, {{200, 170}, {202, 100}, {200, 44}}, {8, 6, 3.4}, palettes::leafy);
        ground(p, 90, 330, 316, 4);
        rootlets(p, {188, 304}, 20, 90, 110, 20);
        lathe(p, {188, 306}, 150, {12, 58, 78, 76, 56, 28, 15, 12, 11},
              {.direction = -86,
               .tilt = 0.08,
               .palette = skin,
               .lines = Lines::along,
               .spacing = 2.6,
               .contour = 0.95,
               .ribs = 11,
               .ribDepth = 0.1});
        for (const auto& [x, y, a] : {std::tuple{286.0, 312.0, -78.0}, {316.0, 320.0, -40.0}})
            lathe(p, {x, y}, 64, {5, 15, 19, 17, 12, 6, 1},
                  {.direction = a,
                   .tilt = 0.1,
                   .palette = mix(skin, palettes::magenta, 0.25),
                   .lines = Lines::along,
                   .contour = 0.9});
    }};
