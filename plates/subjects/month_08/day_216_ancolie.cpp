// Columbine, Aquilegia vulgaris: nodding blue-violet flowers with five hooked spurs, leaves of thrice three
// round lobes.

#include "plates/engraver/Sheet.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/CompoundLeaf.h"
#include "plates/engraver/botany/Roots.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_216_ancolie", [](Plate& p) {
        const LeafKind ternate{.build = LeafKind::Build::trifoliate,
                               .shape = shapes::obovate,
                               .margin = crenate(3, 0.3),
                               .veins = 4,
                               .palette = palettes::bluegreen};
        const Palette violet = mix(palettes::violet, palettes::blue, 0.35);
        const auto columbine = [&](const Path& stalk, double size) {
            stem(p, stalk, {1.8, 1.4});
            const Point at = stalk.back();
            for (int k : {0, 4, 1, 3, 2}) {
                const double x = (k - 2) * 0.5;
                const Point root = at + Point{x * size * 0.46, size * 0.22};
                const Point knee = at + Point{x * size * 0.86, -size * 0.34};
                const Point hook = at + Point{x * size * 0.5, -size * (0.62 - 0.06 * std::fabs(x))};
                tube(p, {root, knee, hook + Point{x * 2, 0}, hook + Point{-x * 7, 5}},
                     {size * 0.13, size * 0.09, size * 0.05, size * 0.065},
                     {.palette = violet, .lines = Lines::along, .contour = 0.75});
            }
            Sheets sheets;
            const Frame frame(at + Point{0, size * 0.1}, -24, 90, 20);
            for (int k = 0; k < 5; ++k)
                sheets.petal(frame, k * 72 + 36,
                             {.length = size * 0.84,
                              .width = size * 0.24,
                              .baseAngle = 64,
                              .tipAngle = 40,
                              .shape = shapes::ovate,
                              .cup = 1.8,
                              .radius = 3,
                              .palette = 0},
                             p.random);
            for (int k = 0; k < 5; ++k)
                sheets.petal(frame, k * 72,
                             {.length = size * 0.6,
                              .width = size * 0.24,
                              .baseAngle = 20,
                              .tipAngle = 6,
                              .shape = {0.7, 0.9, 1, 1, 0.8, 0.3},
                              .cup = 1.1,
                              .radius = 3,
                              .palette = 1},
                             p.random);
            for (int k = 0; k < 7; ++k)
                sheets.rod(frame, {.azimuth = k * 51.0,
                                   .lean = 7,
                                   .length = size * 0.82,
                                   .radius = 0.8,
                                   .tipRadius = 1.9,
                                   .palette = 2});
            sheets.engrave(p, {.palettes = {violet, Sheets::Style::Tint{violet, palettes::whiteflower},
                                            palettes::yellow},
                               .washLift = 0.06});
        };
        for (const auto& [degrees, size] :
             {std::pair{-158.0, 116.0}, {-22.0, 116.0}, {-128.0, 112.0}, {-52.0, 112.0}})
            growLeaf(p, {200, 330}, degrees, size, 20, ternate, degrees < -90 ? -10 : 10);
        rootlets(p, {200, 332}, 12, 90, 120, 16);
        stem(p, {{198, 332}, {176, 250}, {134, 176}, {118, 134}}, {2.6, 1.8});
        stem(p, {{202, 332}, {226, 250}, {266, 180}, {282, 140}}, {2.6, 1.8});
        stem(p, {{200, 332}, {202, 240}, {198, 120}}, {3, 2});
        growLeaf(p, {200, 206}, -40, 62, 12, ternate, 16);
        growLeaf(p, {200, 216}, -140, 62, 12, ternate, -16);
        columbine({{118, 138}, {110, 116}, {96, 124}, {92, 148}}, 72);
        columbine({{282, 144}, {292, 118}, {306, 126}, {308, 150}}, 72);
        columbine({{198, 124}, {200, 74}, {214, 64}, {222, 84}}, 80);
    }};
