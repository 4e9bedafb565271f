#include "plates/engraver/Body.h"
#include "plates/engraver/Ground.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/zoology/Eye.h"

using namespace tambrelle::engraver;

// The rabbit: crouched, long ears upright, split lip, great hind foot, white scut.
static const Subject subject{
    "day_105_lapin", [](Plate& p) {
        constexpr Palette grey{0xE2CDAE, 0xAA8A66, 0x604834}, pale{0xFFFBF2, 0xEFE4D0, 0xB4A48A};
        Body body;
        body.chain({{122, 182, 0, 32}, {154, 176, 0, 42}, {186, 184, 0, 40}, {200, 194, 0, 29}},
                   {.blend = 18, .coat = 10});
        body.chain({{108, 166, 0, 26}, {95, 146, 0, 21}}, {.blend = 14});
        body.chain({{92, 132, 0, 20.5}, {80, 138, 2, 16}, {70, 144, 2, 11}, {66, 146, 2, 9.5}},
                   {.blend = 8, .coat = 150});
        body.chain({{86, 144, 12, 13}}, {.blend = 7, .coat = 20});
        body.chain({{92, 118, -8, 5}, {96, 96, -10, 8}, {101, 70, -10, 8}, {104, 52, -10, 1.6}},
                   {.blend = 3, .depth = 0.45, .coat = -90});
        body.chain({{99, 118, 7, 5.4}, {109, 94, 9, 9}, {121, 66, 9, 8.6}, {127, 50, 9, 1.6}},
                   {.blend = 3, .depth = 0.45, .coat = -80});
        body.chain({{174, 192, 22, 32}, {178, 208, 24, 22}}, {.blend = 10, .coat = 80});
        body.chain({{188, 220, 28, 9.5}, {152, 224, 30, 8.4}, {138, 225, 30, 7}}, {.blend = 5, .coat = 180});
        body.chain({{112, 188, 14, 16}, {104, 208, 16, 10}, {100, 221, 16, 7.4}, {90, 225, 16, 6.8}},
                   {.blend = 6});
        body.chain({{100, 190, -13, 14}, {90, 208, -16, 8.6}, {86, 221, -16, 6.6}, {78, 225, -16, 6}},
                   {.blend = 6});
        body.chain({{226, 198, 0, 12}, {233, 194, 0, 8}}, {.blend = 4, .palette = 1, .coat = -40});
        Body::Style style;
        style.palettes = {grey, pale};
        style.contour = 0.85;
        style.cuts.from = 0.42;
        style.cuts.coverage = 0.4;
        style.crossFrom = 0.8;
        style.marking = [](Point q, double z) {
            const double ring = maths::smooth(9.5, 6.5, length(Point{q.x - 83, (q.y - 132) * 1.1}));
            const double chin = maths::smooth(150, 157, q.y) * maths::smooth(86, 78, q.x);
            const double belly =
                maths::smooth(206, 214, q.y) * maths::smooth(24, 14, z) * maths::smooth(104, 112, q.x);
            return std::max({ring * 0.85, chin, belly});
        };
        body.engrave(p, style);
        body.fur(p,
                 {.spacing = 2.3, .length = 7, .width = 0.58, .from = 0.10, .crossFrom = 0.74, .spread = 13});
        const Path hollow =
            closedSpline({{106, 106}, {109, 92}, {117, 72}, {125, 56}, {123, 76}, {116, 94}}, 8);
        p.flat(hollow, Colour{0xDFA592}, 0.7);
        p.stroke(spline({{105, 108}, {108, 92}, {116, 71}, {124, 55}}), Pen{.width = 0.7, .fade = 0.5});
        for (int k = 0; k < 5; ++k)
            p.stroke(spline({{109.0 + 1.4 * k, 100.0 - 2 * k},
                             {113.0 + 1.6 * k, 86.0 - 2 * k},
                             {118.0 + 1.2 * k, 74.0 - k}},
                            5),
                     Pen{.width = 0.45, .swell = 0.3, .fade = 0.7});
        eye(p, {83, 132},
            {.radius = 4.6,
             .iris = Colour{0x4A2E1A},
             .pupilSize = 0.62,
             .degrees = 168,
             .open = 0.9,
             .lid = 1.0});
        const Path nose =
            closedSpline({{56.6, 141}, {60, 139.6}, {62.6, 141.6}, {60.6, 145}, {57.4, 144.4}}, 5);
        p.flat(nose, Colour{0xC98A7C}, 0.9);
        p.stroke(spline({{56.6, 141}, {59.4, 142.6}, {62.8, 141}}, 5), Pen{.width = 1.2});
        p.stroke(spline({{58.6, 144.8}, {60.6, 149}, {66, 151.4}, {71, 150}}, 6),
                 Pen{.width = 0.95, .swell = 0.1, .fade = 0.6});
        for (int k = 0; k < 6; ++k) {
            p.dot({66.0 + 1.6 * (k % 3), 144 + 1.1 * k}, 0.5);
            p.stroke(spline({{67, 144.0 + k * 0.9}, {50, 143.0 + k * 3}, {34.0 + k, 141.0 + k * 6}}),
                     Pen{.width = 0.5, .swell = 0, .fade = 0.9});
        }
        for (const Point& foot : {Point{90, 231.0}, Point{138, 232.0}})
            for (const double k : {-5.0, -1.4, 2.2})
                p.stroke(
                    spline({foot + Point{k + 2.2, -8}, foot + Point{k, -4}, foot + Point{k - 0.4, 0}}, 5),
                    Pen{.width = 1.3, .swell = 0.4, .fade = 0.2});
        ground(p, 66, 238, 231);
        grassTufts(p, 70, 236, 237, 9);
    }};
