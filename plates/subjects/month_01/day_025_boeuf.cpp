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
        ox.bone = 1.2;
        ox.muscle = 1.08;
        ox.foreNear = {-10, -7};
        ox.foreFar = {6, 8};
        Body body = ox.body();
        Body::Style style = coat({palettes::ginger, palettes::brown, palettes::rose});
        style.marking = [](Point, double) { return 0.55; };
        horn(p, {{56, 86}, {44, 84}, {34, 74}, {32, 60}}, {4.4, 3.8, 2.6, 0.7}, {.tip = palettes::black});
        body.engrave(p, style);
        body.fur(p, {.spacing = 3.2, .length = 6, .width = 0.5, .from = 0.5, .spread = 8});
        ox.finish(p);
        tuftedTail(p, {{226, 108}, {238, 119}, {240, 152}, {237, 180}}, 3.4, palettes::ginger,
                   palettes::brown);
        // The neck yoke: a carved beam before the withers with its bow under the throat.
        const TubeForm wood{.palette = palettes::wood, .lines = Lines::along, .spacing = 1.7, .contour = 0.9};
        tube(p, {{92, 92}, {88, 116}, {80, 138}, {70, 140}, {68, 126}}, {2.6, 2.6, 2.6}, wood);
        tube(p, {{112, 96}, {108, 88}, {98, 82}, {88, 84}, {80, 78}, {72, 80}}, {4.5, 6, 7, 6.2, 6, 5}, wood);
        p.stroke(spline({{66, 90}, {70, 84}, {76, 82}}), {.width = 1.8, .swell = 0, .fade = 0});
        horn(p, {{66, 84}, {76, 76}, {80, 62}, {72, 50}}, {5, 4.3, 3, 0.7}, {.tip = palettes::black});
        ground(p, 56, 250, 233);
    }};
