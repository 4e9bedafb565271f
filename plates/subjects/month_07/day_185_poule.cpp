#include "plates/engraver/Ground.h"
#include "plates/engraver/Relief.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/zoology/Bird.h"

using namespace tambrelle::engraver;

// The hen: red comb of five points, wattles, tail held up like a roof, four-toed yellow feet.
static const Subject subject{
    "day_185_poule", [](Plate& p) {
        birdLeg(p, {160, 180}, {158, 226}, {.palette = palettes::yellow});
        birdLeg(p, {136, 182}, {133, 228}, {.palette = palettes::yellow});
        tailFan(p, {182, 138},
                {.from = -84,
                 .to = 16,
                 .feathers = 8,
                 .length = 58,
                 .width = 8,
                 .palette = palettes::brown,
                 .tone = 0.38});
        Body hen;
        hen.chain({{112, 146, 0, 31}, {140, 160, 0, 37}, {170, 150, 0, 30}, {192, 132, 0, 16}},
                  {.blend = 18, .coat = -8});
        hen.chain({{108, 132, 0, 23}, {100, 104, 0, 15}, {98, 84, 0, 12}}, {.blend = 12, .coat = 100});
        hen.chain({{97, 77, 0, 12}, {91, 79, 0, 9.4}}, {.blend = 5, .coat = 90});
        Body::Style style = plumed({palettes::brown});
        style.highlight = 0.06;
        hen.engrave(p, style);
        hen.plumage(p, {.spacing = 6.5,
                        .size = 8,
                        .width = 0.6,
                        .where = [](Point q) { return q.y < 132 && q.y > 84; },
                        .sizeAt = [](Point q) { return 0.45 + 0.6 * maths::clamp01((q.y - 70) / 60); }});
        hen.plumage(p,
                    {.spacing = 11, .size = 9.5, .width = 0.65, .where = [](Point q) { return q.y >= 128; }});
        wing(p, {124, 126},
             {.degrees = 4,
              .length = 96,
              .depth = 48,
              .coverts = palettes::brown,
              .secondaries = palettes::brown,
              .primaries = palettes::chestnut,
              .tone = 0.12});
        ReliefForm flesh;
        flesh.palette = palettes::scarlet;
        flesh.bevel = 6;
        flesh.spacing = 1.8;
        relief(p,
               closedSpline({{85, 70},
                             {80, 60},
                             {85, 62},
                             {85, 50},
                             {91, 58},
                             {95, 45},
                             {99, 57},
                             {105, 49},
                             {106, 60},
                             {113, 58},
                             {109, 70},
                             {102, 75},
                             {93, 71}},
                            5),
               flesh);
        relief(p, closedSpline({{85, 86}, {92, 87}, {94, 98}, {89, 107}, {83, 103}, {81, 94}}, 8), flesh);
        bill(p, {{88, 73}, {81, 75}, {73, 82}, {75, 85}, {81, 84}, {88, 85}},
             {{75, 82.5}, {81, 80}, {89, 80}}, Point{82, 77}, {.palette = palettes::yellow});
        flesh.shade = 0;
        relief(p, ellipse({94, 78}, 6.6, 5.8), flesh);
        relief(p, ellipse({103, 86}, 3.2, 4.2), flesh);
        birdEye(p, {93.5, 77}, 2.8, Colour{0xE0A23A});
        ground(p, 86, 206, 234);
        for (int k = 0; k < 9; ++k)
            p.dot({96 + p.random.uniform(0, 90), 240 + p.random.uniform(-3, 5)}, 0.9, Colour{0x8A6830});
    }};
