#include "plates/engraver/Ground.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/zoology/Quadruped.h"

using namespace tambrelle::engraver;

// The dog: a hound, deep chest and tucked belly, lop ears, square muzzle, lively tail; white with liver
// patches.
static const Subject subject{
    "day_095_chien", [](Plate& p) {
        Quadruped dog;
        dog.trunk = {{102, 142, 0, 25}, {120, 145, 0, 28}, {148, 140, 0, 23},
                     {174, 134, 0, 18}, {190, 132, 0, 19}, {198, 137, 0, 14}};
        dog.swellings = {{{108, 120, 0, 9}, {126, 121, 0, 6}}};
        dog.neck = {{104, 132, 0, 21}, {97, 112, 0, 16}, {91, 95, 0, 14.5}};
        dog.head = {{87, 82}, 170, 52};
        dog.headBuild = &canineHead();
        dog.ears = {{.at = {0.10, -0.04},
                     .z = 0.30,
                     .degrees = 66,
                     .length = 34,
                     .width = 8.5,
                     .bend = 26,
                     .palette = 1,
                     .open = false}};
        dog.elbow = {104, 150};
        dog.hip = {190, 134};
        dog.bone = 0.86;
        dog.muscle = 0.78;
        dog.shoulder = 15;
        dog.spread = 10;
        dog.foot = Foot::paw;
        dog.foreNear = {0, 0};
        dog.foreFar = {-16, -14};
        dog.hindNear = {0, 2};
        dog.hindFar = {-12, -16};
        Body body = dog.body();
        body.chain({{200, 128, 0, 6}, {216, 118, 0, 5}, {229, 100, 0, 3.6}, {234, 82, 0, 1.6}}, {.blend = 5});
        Body::Style style = coat({palettes::whiteflower, palettes::chestnut, palettes::black});
        style.marking = [pied = patches(27, 0.34, 34)](Point q, double z) {
            const double blaze = maths::smooth(2.5, 5, std::fabs(q.y - 72 - (80 - q.x) * 0.02));
            const double head = maths::smooth(94, 86, q.y + (q.x - 80) * 0.12) * maths::smooth(54, 60, q.x) *
                                (q.y < 76 && q.x < 76 ? blaze : 1.0);
            const double trunk = pied(q, z) * maths::smooth(104, 112, q.y) * maths::smooth(172, 164, q.y) *
                                 maths::smooth(222, 214, q.x);
            return std::max(head, trunk);
        };
        body.engrave(p, style);
        body.fur(p, {.spacing = 2.8, .length = 5, .width = 0.5, .from = 0.42, .spread = 9});
        dog.finish(p);
        ground(p, 62, 226, 233);
        grassTufts(p, 70, 220, 239, 6);
    }};
