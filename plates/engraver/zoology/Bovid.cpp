#include "plates/engraver/zoology/Bovid.h"

#include "plates/engraver/Tube.h"
#include "plates/engraver/zoology/Locks.h"

namespace tambrelle::engraver {

Quadruped cattle() {
    Quadruped q;
    q.trunk = {{94, 126, 0, 31},  {116, 131, 0, 36}, {156, 134, 0, 37},
               {192, 126, 0, 31}, {214, 119, 0, 26}, {224, 122, 0, 17}};
    q.swellings = {{{104, 102, 0, 12}, {130, 103, 0, 8}, {170, 104, 0, 8}},
                   {{204, 102, 0, 10}, {222, 104, 0, 8}},
                   {{88, 152, 0, 9}, {78, 142, 0, 7}, {70, 128, 0, 5}}};
    q.neck = {{98, 120, 0, 28}, {82, 112, 0, 22}, {68, 103, 0, 16}};
    q.head = {{61, 94}, 118, 53};
    q.headBuild = &bovineHead();
    q.ears = {{.at = {0.08, 0.02}, .z = 0.42, .degrees = 12, .length = 23, .width = 4.6, .bend = 34}};
    q.elbow = {95, 152};
    q.hip = {214, 118};
    q.shoulder = 19;
    q.bone = 1.1;
    q.muscle = 1.0;
    q.angulation = 0.72;
    q.foreFar = {-10, -13};
    q.hindNear = {2, 2};
    q.hindFar = {-10, -13};
    q.foot = Foot::cloven;
    return q;
}

void tuftedTail(Plate& plate, const Path& spine, double radius, const Palette& skin, const Palette& tuft) {
    const Path s = tube(plate, spine, {radius, radius * 0.75, radius * 0.55},
                        {.palette = skin, .spacing = 1.8, .contour = 0.8});
    const Point end = along(s, 0.94), way = direction(angleAlong(s, 0.95));
    lock(plate, {end, end + way * 13 + Point{1, 0}, end + way * 27 + Point{-3, 0}},
         {radius * 0.55, radius * 1.5, 0.4}, {.palette = tuft, .strands = 30, .tone = 0.65});
}

} // namespace tambrelle::engraver
