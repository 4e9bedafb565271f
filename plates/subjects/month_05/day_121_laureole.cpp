// Spurge laurel, Daphne laureola: a low evergreen; glossy leathery leaves crowded at the shoots' ends, and
// below them clusters of nodding yellow-green tubes with four lobes.

#include "plates/engraver/Path.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Flower.h"
#include "plates/engraver/botany/Leaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_121_laureole", [](Plate& p) {
        const Palette bark = mix(palettes::stem, palettes::bark, 0.5);
        const auto blade = [&](Point at, double degrees, double size) {
            const double bend = degrees < -90 ? -8 : 8;
            leaf(p, {at, polar(at, degrees - bend * 0.4, size * 0.52), polar(at, degrees + bend, size)},
                 {.width = size * 0.145,
                  .shape = {0.12, 0.36, 0.66, 0.95, 1, 0.72, 0},
                  .palette = palettes::darkleaf,
                  .veins = 7,
                  .coverage = 0.34});
        };
        const FlowerForm tubular{.petals = 4,
                                 .length = 15,
                                 .width = 6.4,
                                 .baseAngle = 58,
                                 .tipAngle = 92,
                                 .shape = shapes::ovate,
                                 .palette = mix(palettes::leafy, palettes::yellow, 0.5),
                                 .tilt = 34,
                                 .tube = 24,
                                 .tubeRadius = 4.2,
                                 .eye = 2.2,
                                 .eyePalette = palettes::orange,
                                 .washLift = 0.04};
        const auto crown = [&](const Path& shoot, double size) {
            const Path curve = stem(p, shoot, {6.4 * size, 5 * size}, bark);
            const Point top = shoot.back();
            const double way = angleAlong(curve, 1);
            for (const double turn : {-104.0, 104.0, -78.0, 78.0, -22.0, 22.0, 0.0, -50.0, 50.0})
                blade(polar(top, way + turn, 4), way + turn, (124 - 0.22 * std::fabs(turn)) * size);
            const Point nodes[] = {{-34, 22}, {34, 22}, {-17, 36}, {17, 38}, {0, 24}};
            for (const Point& n : nodes) {
                const Point tip = top + n * size;
                stem(p, {top + Point{n.x * 0.2, 0}, lerp(top, tip, 0.6) + Point{0, -4}, tip}, {1.8, 1.6});
                flower(p, tip + Point{n.x * 0.14, 18} * size, 90 - n.x * 0.9, tubular, 1.1 * size);
            }
        };
        stem(p, {{196, 354}, {202, 326}, {198, 300}}, {8, 7}, bark);
        crown({{198, 316}, {160, 292}, {124, 252}}, 0.8);
        crown({{200, 316}, {244, 290}, {282, 248}}, 0.8);
        crown({{199, 310}, {205, 240}, {200, 150}}, 1.08);
    }};
