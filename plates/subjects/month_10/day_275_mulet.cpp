#include "plates/engraver/Ground.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/zoology/Equid.h"
#include "plates/engraver/zoology/Locks.h"

using namespace tambrelle::engraver;

// The mule: a horse's body and dark coat, long ears, mealy muzzle, thin roached mane, tail haired from half
// way down; it carries its pack-saddle.
static const Subject subject{
    "day_275_mulet", [](Plate& p) {
        Quadruped mule = equid();
        mule.head = {{70, 56}, 124, 60};
        mule.bone = 0.92;
        mule.foreNear = {-16, -13};
        mule.foreFar = {4, 4};
        mule.hindNear = {-4, -8};
        mule.hindFar = {6, 10};
        mule.ears = {
            {.at = {-0.10, -0.17}, .z = -0.12, .degrees = -104, .length = 30, .width = 4.2, .bend = 12},
            {.at = {-0.14, -0.05}, .z = 0.12, .degrees = -82, .length = 32, .width = 4.8, .bend = -10}};
        Body body = mule.body();
        Body::Style style = darkCoat({mix(palettes::brown, palettes::black, 0.45), palettes::tan});
        style.marking = [](Point q, double) {
            return maths::smooth(97, 104, q.y) * maths::smooth(54, 48, q.x);
        };
        body.engrave(p, style);
        mule.finish(p);
        const Palette dark = mix(palettes::brown, palettes::black, 0.8);
        mane(p, {{77, 38}, {92, 55}, {104, 77}, {114, 96}},
             {.locks = 26,
              .fallFirst = {4, -7},
              .fallLast = {4, -6},
              .belly = 3,
              .width = 1.8,
              .lock = {.palette = dark, .strands = 6, .tone = 0.75, .halo = 0.1, .shade = 0}});
        lock(p, {{221, 108}, {235, 120}, {238, 150}, {236, 166}}, {2.8, 3, 2.6, 2.6},
             {.palette = dark, .strands = 20});
        lock(p, {{236, 160}, {239, 182}, {236, 208}}, {2.6, 6.5, 0.4}, {.palette = dark, .strands = 40});
        // Pack-saddle: cloth, pad and girth.
        const Path cloth = closedSpline(
            {{128, 92}, {150, 95}, {176, 93}, {182, 112}, {180, 132}, {154, 137}, {128, 133}, {125, 112}}, 8);
        p.knockOut(cloth, {.halo = 0.5, .shade = 0.3});
        {
            const Plate::Clip clip(p, cloth);
            p.flat(cloth, palettes::brick, 0.42);
            for (int k = 0; k < 15; ++k) {
                const double x = 124 + k * 4.2;
                p.flat({{x, 88}, {x + 1.6, 88}, {x + 1.6, 140}, {x, 140}}, palettes::cream, 0.3);
                p.stroke(spline({{x + 2.6, 90}, {x + 3.4, 112}, {x + 2.6, 139}}, 8),
                         {.width = 0.5 + 0.05 * k, .swell = 0.3, .fade = 0.1});
            }
        }
        p.contour(cloth, 0.9);
        tube(p, {{131, 94}, {129, 84}, {136, 80}, {143, 86}, {144, 95}}, {3, 3.4, 3.4, 3},
             {.palette = palettes::wood, .contour = 0.8});
        tube(p, {{164, 95}, {164, 85}, {170, 80}, {177, 85}, {178, 94}}, {3, 3.4, 3.4, 3},
             {.palette = palettes::wood, .contour = 0.8});
        tube(p, {{128, 94}, {152, 97}, {180, 94}}, {3.2, 3.6, 3.2},
             {.palette = palettes::wood, .contour = 0.8});
        p.stroke(spline({{146, 136}, {147, 150}, {148, 158}}), {.width = 3.2, .swell = 0, .fade = 0});
        ground(p, 62, 242, 233);
    }};
