// Love-lies-bleeding, Amaranthus caudatus: broad ovate leaves and long crimson tassels that hang down.

#include "plates/engraver/Subject.h"
#include "plates/engraver/botany/Herb.h"
#include "plates/engraver/botany/Inflorescence.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_008_amarante", [](Plate& p) {
        const Palette crimson = mix(palettes::crimson, palettes::magenta, 0.15);
        const auto tassel = [&](const Path& spine, double radius) {
            spike({.radius = radius,
                   .from = 0.03,
                   .shape = {0.5, 0.8, 1, 0.95, 0.85, 0.3},
                   .grain = 2.6,
                   .density = 1.1,
                   .palette = crimson,
                   .second = palettes::red})(p, spline(spine));
        };
        herb(p, {.height = 190,
                 .stems = {0},
                 .stemRadius = 4.4,
                 .tipRadius = 3,
                 .stemPalette = palettes::redstem,
                 .leaf = {.shape = shapes::ovate,
                          .veins = 8,
                          .petiole = 0.3,
                          .palette = palettes::leaf,
                          .stalk = palettes::redstem},
                 .leaves = 7,
                 .leavesFrom = 0.12,
                 .leavesTo = 0.95,
                 .leafLength = 112,
                 .topLeafLength = 76,
                 .leafWidth = 25,
                 .topLeafWidth = 16,
                 .leafAngle = 62,
                 .root = RootKind::fibrous});
        tassel({{200, 170}, {214, 136}, {246, 130}, {264, 168}, {268, 226}}, 8);
        tassel({{200, 164}, {182, 132}, {150, 132}, {134, 176}, {130, 244}}, 8.5);
        tassel({{200, 158}, {204, 106}, {230, 84}, {256, 112}, {262, 152}}, 7);
        tassel({{200, 170}, {196, 104}, {184, 76}, {164, 92}, {156, 148}, {158, 214}, {150, 286}}, 10.5);
        tassel({{201, 168}, {212, 118}, {218, 122}, {230, 196}, {224, 268}}, 9.5);
    }};
