#include "plates/engraver/Ground.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/zoology/Quadruped.h"

using namespace tambrelle::engraver;

// The pig: barrel of a body on short cloven feet, disc of a snout, lop ears over the eyes, curled tail,
// sparse bristles.
static const Subject subject{
    "day_065_cochon", [](Plate& p) {
        constexpr Palette skin{0xF9E2D2, 0xECBBA2, 0xAA7460}, disc{0xF4C6B4, 0xDE9A86, 0x9A5A4C};
        Quadruped pig;
        pig.trunk = {
            {104, 146, 0, 36}, {130, 148, 0, 41}, {164, 149, 0, 42}, {196, 145, 0, 38}, {212, 148, 0, 29}};
        pig.swellings = {{{150, 168, 0, 26}, {180, 166, 0, 25}}};
        pig.neck = {{106, 144, 0, 35}, {90, 140, 0, 28}};
        pig.head = {{84, 128}, 164, 66};
        pig.headBuild = &porcineHead();
        pig.ears = {{.at = {0.10, -0.20},
                     .z = -0.2,
                     .degrees = 196,
                     .length = 26,
                     .width = 8,
                     .bend = -60,
                     .open = false},
                    {.at = {0.02, -0.12},
                     .z = 0.3,
                     .degrees = 150,
                     .length = 32,
                     .width = 10,
                     .bend = -50,
                     .open = false}};
        pig.elbow = {102, 168};
        pig.hip = {204, 150};
        pig.bone = 1.0;
        pig.muscle = 0.95;
        pig.shoulder = 19;
        pig.spread = 15;
        pig.angulation = 0.8;
        pig.foreFar = {-10, -14};
        pig.hindNear = {2, 4};
        pig.hindFar = {-12, -16};
        pig.foot = Foot::cloven;
        pig.hoofs = palettes::dun;
        tube(p, {{234, 136}, {246, 128}, {253, 136}, {245, 143}, {240, 135}, {247, 127}, {257, 127}},
             {3.2, 2.6, 2.2, 1.0}, {.palette = skin, .spacing = 1.6, .contour = 0.8});
        Body body = pig.body();
        body.engrave(p, coat({skin, skin, disc}));
        body.fur(p,
                 {.spacing = 4.2, .length = 8, .width = 0.5, .from = 0.1, .spread = 10, .where = [](Point q) {
                      return q.y < 140 && q.x > 92;
                  }});
        pig.finish(p);
        p.stroke(spline({{70, 114}, {64, 128}, {58, 140}}, 6), {.width = 0.5, .swell = 0.4, .fade = 0.6});
        ground(p, 60, 246, 233);
        grassTufts(p, 64, 240, 239, 6);
    }};
