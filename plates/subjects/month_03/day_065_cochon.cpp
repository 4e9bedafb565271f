#include "plates/engraver/Ground.h"
#include "plates/engraver/Relief.h"
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
            {108, 146, 0, 34}, {130, 143, 0, 40}, {160, 141, 0, 43}, {188, 144, 0, 38}, {202, 149, 0, 29}};
        pig.swellings = {{{140, 166, 0, 26}, {172, 164, 0, 25}}};
        pig.neck = {{110, 142, 0, 33}, {97, 136, 0, 28}};
        pig.head = {{92, 124}, 156, 64};
        pig.headBuild = &porcineHead();
        pig.elbow = {102, 168};
        pig.hip = {196, 150};
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
        tube(p, {{226, 136}, {238, 128}, {245, 136}, {237, 143}, {232, 135}, {239, 127}, {249, 127}},
             {3.2, 2.6, 2.2, 1.0}, {.palette = skin, .spacing = 1.6, .contour = 0.8});
        ReliefForm lop;
        lop.palette = skin;
        lop.bevel = 10;
        lop.heightScale = 0.7;
        lop.spacing = 1.9;
        relief(p,
               closedSpline(pig.head.path(
                                {{-0.06, -0.26}, {0.02, -0.52}, {0.16, -0.66}, {0.22, -0.50}, {0.24, -0.24}}),
                            8),
               lop);
        Body body = pig.body();
        body.engrave(p, coat({skin, skin, disc}));
        body.fur(p,
                 {.spacing = 4.2, .length = 8, .width = 0.5, .from = 0.1, .spread = 10, .where = [](Point q) {
                      return q.y < 140 && q.x > 92;
                  }});
        pig.finish(p);
        // The near ear lops forward over the brow.
        const Path ear = closedSpline(pig.head.path({{-0.10, -0.30},
                                                     {0.06, -0.37},
                                                     {0.26, -0.27},
                                                     {0.42, -0.10},
                                                     {0.47, 0.06},
                                                     {0.36, 0.10},
                                                     {0.20, 0.12},
                                                     {0.02, 0.06},
                                                     {-0.10, -0.10}}),
                                      8);
        relief(p, ear, lop);
        p.stroke(spline(pig.head.path({{-0.04, -0.18}, {0.14, -0.20}, {0.34, -0.06}})),
                 Pen{.width = 0.6, .swell = 0.3, .fade = 0.6});
        p.stroke(spline(pig.head.path({{-0.02, -0.06}, {0.14, -0.06}, {0.30, 0.02}})),
                 Pen{.width = 0.5, .swell = 0.3, .fade = 0.6});
        // The disc of the snout with its nostrils.
        const Point rooter = pig.head.at(1.06, 0.085);
        ReliefForm snout;
        snout.palette = disc;
        snout.bevel = 4;
        snout.heightScale = 0.8;
        relief(p, turned(ellipse(rooter, 5.2, 11.4), pig.head.degrees - 180, rooter), snout);
        for (const double v : {0.025, 0.14}) {
            const Point nostril = pig.head.at(1.065, v);
            p.ink(turned(ellipse(nostril, 1.5, 2.5, 16), pig.head.degrees - 180, nostril), sepia, 0.9);
        }
        ground(p, 60, 240, 233);
        grassTufts(p, 64, 240, 239, 6);
    }};
