#include "plates/engraver/Ground.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/zoology/Bovid.h"
#include "plates/engraver/zoology/Horn.h"

using namespace tambrelle::engraver;

// The ox: the castrated draught beast, heavy and long, wide horns, solid red, under the wooden yoke.
static const Subject subject{
    "day_025_boeuf", [](Plate& p) {
        Quadruped ox = cattle();
        ox.neck = {{98, 122, 0, 31}, {82, 114, 0, 26}, {68, 106, 0, 19}};
        ox.head = {{62, 98}, 112, 55};
        ox.ears = {};
        ox.bone = 1.2;
        ox.muscle = 1.08;
        ox.foreNear = {-10, -7};
        ox.foreFar = {6, 8};
        Body body = ox.body();
        Body::Style style = coat({palettes::ginger, palettes::brown, palettes::rose});
        style.highlight = 0.05;
        style.marking = [](Point, double) { return 0.55; };
        horn(p, {{56, 86}, {44, 84}, {34, 74}, {32, 60}}, {4.4, 3.8, 2.6, 0.7}, {.tip = palettes::black});
        body.engrave(p, style);
        body.fur(p, {.spacing = 3.2, .length = 6, .width = 0.5, .from = 0.5, .spread = 8});
        ox.finish(p);
        // The ear stands off the thick neck, below the horn.
        Body ear;
        ear.chain({{70, 95, 30, 4.2}, {80, 99, 32, 5.6}, {91, 105, 32, 4.6}, {98, 110, 32, 1.4}},
                  {.blend = 3, .depth = 0.5});
        ear.engrave(p, style);
        const Path hollow = closedSpline({{74, 96}, {82, 97}, {93, 106}, {82, 102}}, 6);
        p.flat(hollow, palettes::brown, 0.9);
        p.stroke(spline({{72, 96}, {82, 101}, {95, 108}}, 6), Pen{.width = 0.8});
        tuftedTail(p, {{226, 108}, {238, 119}, {240, 152}, {237, 180}}, 3.4, palettes::ginger,
                   palettes::brown);
        // The neck yoke: a carved beam lying across the neck, its near end towards the viewer, the bow of
        // bent wood under the throat and the chain to the load along the flank.
        const TubeForm wood{.palette = palettes::wood,
                            .lines = Lines::along,
                            .spacing = 1.7,
                            .contour = 0.95,
                            .cutEnd = true};
        TubeForm bow = wood;
        bow.cutEnd = false;
        tube(p, {{106, 104}, {106, 130}, {98, 154}, {84, 160}, {76, 146}}, {3, 3, 3}, bow);
        for (int k = 0; k < 15; ++k) {
            const Point link =
                lerp({112, 128}, {246, 158}, k / 14.0) + Point{0, 5 * maths::sin(maths::pi * k / 14.0)};
            p.contour(turned(ellipse(link, 5.4, k % 2 == 0 ? 2.6 : 1.1, 18), 15, link),
                      {.width = 1.3, .lit = 0.8});
        }
        tube(p, {{124, 84}, {112, 92}, {100, 100}, {90, 112}}, {7, 8.4, 9, 9.6}, wood);
        p.stroke(spline({{108, 84}, {112, 92}, {110, 100}}), Pen{.width = 1.0});
        horn(p, {{66, 84}, {76, 76}, {80, 62}, {72, 50}}, {5, 4.3, 3, 0.7}, {.tip = palettes::black});
        ground(p, 56, 250, 233);
    }};
