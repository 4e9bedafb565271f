#include "plates/engraver/Ground.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/minerals/Stone.h"

using namespace tambrelle::engraver;

namespace {

void lump(Plate& p, const Path& corners, std::uint64_t seed, double depth) {
    stone(p, corners,
          {.palette = palettes::coal,
           .seed = seed,
           .facets = 16,
           .rough = 0.35,
           .grain = 30,
           .depth = depth,
           .tone = 0.2,
           .spacing = 1.9,
           .coverage = 0.55,
           .hatchFrom = 0.2});
}

} // namespace

// Coal: black, with glossy facets that flash.
static const Subject subject{
    "day_092_houille", [](Plate& p) {
        ground(p, 70, 330, 290, 6);
        lump(p,
             {{170, 220},
              {186, 150},
              {224, 108},
              {276, 112},
              {318, 158},
              {326, 226},
              {290, 274},
              {220, 280},
              {180, 260}},
             3, 60);
        lump(p,
             {{70, 276},
              {78, 226},
              {108, 186},
              {158, 188},
              {196, 222},
              {200, 268},
              {168, 300},
              {110, 306},
              {78, 296}},
             7, 46);
        lump(p, {{208, 300}, {220, 272}, {256, 258}, {292, 272}, {302, 296}, {266, 312}, {226, 312}}, 12, 28);
        lump(p, {{156, 312}, {166, 298}, {186, 296}, {196, 308}, {182, 318}, {164, 318}}, 5, 12);
    }};
