#include "plates/engraver/Ground.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/zoology/Bird.h"

using namespace tambrelle::engraver;

// The goose: long furrowed neck, heavy white body, high orange bill, webbed feet.
static const Subject subject{
    "day_035_oie", [](Plate& p) {
        birdLeg(p, {166, 184}, {162, 229}, {.palette = palettes::orange, .webbed = true});
        birdLeg(p, {141, 188}, {137, 231}, {.palette = palettes::orange, .webbed = true});
        tailFan(p, {205, 146},
                {.from = -24,
                 .to = 6,
                 .feathers = 5,
                 .length = 44,
                 .width = 6.5,
                 .palette = palettes::whiteflower});
        Body goose;
        goose.chain(
            {{114, 146, 0, 32}, {138, 158, 0, 37}, {168, 158, 0, 32}, {194, 150, 0, 19}, {216, 142, 0, 8}},
            {.blend = 18, .coat = 8});
        goose.chain({{104, 136, 0, 24}, {92, 112, 0, 14}, {86, 88, 0, 9.4}, {88, 62, 0, 8.2}, {94, 46, 0, 8}},
                    {.blend = 10, .coat = 95});
        goose.chain({{96, 41, 0, 10}, {88, 41, 0, 9.2}}, {.blend = 6, .coat = 20});
        goose.engrave(p, plumed({palettes::whiteflower}));
        goose.plumage(p, {.spacing = 7,
                          .size = 5,
                          .width = 0.42,
                          .where = [](Point q) { return q.y < 130 && q.y > 98 && q.x < 118; },
                          .sizeAt = [](Point q) { return 0.5 + 0.6 * (q.y - 90) / 40; }});
        goose.plumage(p,
                      {.spacing = 10, .size = 8, .width = 0.5, .where = [](Point q) { return q.y >= 126; }});
        wing(p, {126, 126},
             {.coverts = palettes::whiteflower,
              .secondaries = palettes::whiteflower,
              .primaries = palettes::grey});
        for (int k = 0; k < 9; ++k) {
            const double x = 80 + k * 1.9;
            p.stroke(spline({{x + 3, 58 + k * 0.6}, {x - 1.5 + k * 0.3, 78}, {x - 1 + k * 0.9, 102}}),
                     {.width = 0.45, .swell = 0.5, .fade = 0.5});
        }
        bill(p, {{87, 34}, {80, 36}, {68, 44}, {62, 48}, {63, 52}, {72, 52}, {86, 48}},
             {{63, 49.5}, {74, 47.6}, {86, 45}}, Point{75, 41.5}, {.palette = palettes::orange});
        birdEye(p, {92, 38}, 2.9, Colour{0x6F95B5});
        ground(p, 92, 212, 236, 4);
    }};
