#include "plates/engraver/Face.h"
#include "plates/engraver/Ground.h"
#include "plates/engraver/Lathe.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/carpentry/Cooperage.h"

using namespace tambrelle::engraver;

// The watering can: a body of tinned iron, a long spout with a rose of many holes, a hoop handle.
static const Subject subject{
    "day_310_arrosoir", [](Plate& p) {
        ground(p, 70, 330, 298, 6);
        TubeForm metal;
        metal.palette = palettes::iron;
        metal.spacing = 1.9;
        metal.contour = 0.9;
        metal.tone = 0.02;
        // The spout, its stay and its rose.
        tube(p, {{212, 276}, {252, 230}, {302, 146}}, {15, 11, 8}, metal);
        tube(p, {{206, 176}, {244, 186}, {276, 184}}, 3, metal);
        LatheForm rose;
        rose.palette = palettes::iron;
        rose.direction = -58;
        rose.tilt = 0.5;
        const LatheSurface cone = lathe(p, {297, 154}, 40, {8, 14, 26}, rose);
        const Path plate = cone.ring(1);
        p.knockOut(plate, {.halo = 0, .shade = 0});
        p.flat(plate, palettes::iron, 0.18);
        p.contour(plate, 1);
        const Point c = centroid(plate);
        for (int k = 0; k < 26; ++k) {
            const double q = std::sqrt((k + 0.5) / 27), a = k * 137.5;
            p.dot(lerp(c, cone.at(1, a), q * 0.95), 1.15);
        }
        tube(p, {{118, 272}, {84, 250}, {74, 206}, {92, 174}, {112, 170}}, {5.5, 5.5, 5.5, 5.5, 5.5}, metal);
        LatheForm can;
        can.palette = palettes::iron;
        can.tilt = 0.28;
        can.lines = Lines::along;
        const LatheSurface body = lathe(p, {160, 286}, 140, {70, 63}, can);
        hoop(p, body, 0.05, {.breadth = 8});
        hoop(p, body, 0.92, {.breadth = 8});
        p.stroke({body.at(0.08, 118), body.at(0.5, 118), body.at(0.88, 118)},
                 Pen{.width = 0.8, .swell = 0, .fade = 0});
        for (int k = 0; k < 9; ++k)
            p.dot(body.at(0.12 + 0.09 * k, 121), 0.9);
        mouth(
            p, body,
            {.rim = 2.5, .palette = palettes::iron, .depth = 0.5, .liquid = palettes::water, .level = 0.14});
        // Half the mouth is covered, so that it does not spill.
        Path cover = body.ring(1, 180, 360, -2);
        face(p, cover, {.tone = 0.2, .palette = palettes::iron, .lines = 0, .contour = 0.9, .shade = 0.3});
        tube(p, {{103, 162}, {104, 110}, {160, 74}, {216, 106}, {219, 164}}, {5.5, 5.5, 5.5, 5.5, 5.5},
             metal);
    }};
