#include "plates/engraver/Ground.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/zoology/Horn.h"
#include "plates/engraver/zoology/Quadruped.h"

using namespace tambrelle::engraver;

// The roe deer: small and slender, red in summer, white rump without a tail to see, short upright antlers of
// three points with rough burrs, black nose and white chin.
static const Subject subject{
    "day_075_chevreuil", [](Plate& p) {
        Quadruped roe;
        roe.trunk = {{102, 130, 0, 21}, {122, 133, 0, 25}, {152, 134, 0, 25},
                     {178, 128, 0, 23}, {196, 124, 0, 20}, {205, 130, 0, 14}};
        roe.swellings = {{{112, 112, 0, 8}, {130, 112, 0, 6}}, {{186, 110, 0, 8}, {202, 116, 0, 7}}};
        roe.neck = {{106, 122, 0, 18}, {98, 100, 0, 13}, {92, 80, 0, 11}, {88, 66, 0, 10}};
        roe.head = {{86, 62}, 148, 44};
        roe.headBuild = &cervineHead();
        roe.ears = {
            {.at = {-0.04, -0.12},
             .z = -0.14,
             .degrees = -128,
             .length = 25,
             .width = 5,
             .bend = 20,
             .open = false},
            {.at = {-0.14, 0.02}, .z = 0.16, .degrees = -38, .length = 28, .width = 5.6, .bend = -24}};
        roe.elbow = {106, 142};
        roe.hip = {196, 126};
        roe.bone = 0.66;
        roe.muscle = 0.74;
        roe.shoulder = 13;
        roe.spread = 9;
        roe.foreNear = {-1, 0};
        roe.foreFar = {-22, -10};
        roe.hindFar = {-10, -14};
        roe.foot = Foot::cloven;
        Body body = roe.body();
        Body::Style style = coat({palettes::ginger, palettes::whiteflower, palettes::black});
        style.marking = [](Point q, double z) {
            const double rump = maths::smooth(1.0, 0.8, length(Point{(q.x - 216) / 19, (q.y - 130) / 25}));
            const double chin = maths::smooth(81, 85, q.y) * maths::smooth(66, 60, q.x);
            const double belly = maths::smooth(152, 157, q.y) * maths::smooth(122, 132, q.x) *
                                 maths::smooth(182, 174, q.x) * maths::smooth(-30, 10, z);
            return std::max({rump, chin, belly * 0.7});
        };
        const auto antler = [&p](Point base, double lean) {
            const Point fork = base + Point{4 + lean, -19}, top = fork + Point{3, -17};
            horn(p, {fork + Point{0, 1}, fork + Point{-4, -5}, fork + Point{-7, -12}}, {1.9, 0.5},
                 {.palette = palettes::horn});
            horn(p,
                 {lerp(fork, top, 0.42), lerp(fork, top, 0.42) + Point{6, -3},
                  lerp(fork, top, 0.42) + Point{10, -9}},
                 {1.6, 0.5}, {.palette = palettes::horn});
            horn(p, {base, base + Point{3, -8}, fork, top}, {3.2, 2.7, 2.4, 0.6},
                 {.palette = palettes::horn, .rings = 9});
            p.ink(ellipse(base + Point{0.5, -1}, 4, 2), sepia, 0.75);
        };
        antler({82, 53}, -4);
        body.engrave(p, style);
        body.fur(p, {.spacing = 2.8, .length = 7, .width = 0.55, .from = 0.42, .spread = 9});
        antler({89, 53}, 4);
        roe.finish(p);
        ground(p, 66, 232, 233);
        grassTufts(p, 70, 226, 239, 8);
    }};
