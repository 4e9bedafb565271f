#include "plates/engraver/zoology/Caprine.h"

#include "plates/engraver/zoology/Locks.h"

namespace tambrelle::engraver {

Quadruped goat() {
    Quadruped q;
    q.trunk = {{102, 131, 0, 25}, {122, 134, 0, 29}, {152, 137, 0, 29},
               {180, 130, 0, 25}, {198, 126, 0, 22}, {208, 132, 0, 15}};
    q.swellings = {{{108, 110, 0, 9}, {128, 111, 0, 7}}, {{190, 110, 0, 9}, {206, 115, 0, 8}}};
    q.neck = {{102, 124, 0, 23}, {90, 104, 0, 17}, {81, 86, 0, 13}};
    q.head = {{76, 76}, 130, 45};
    q.headBuild = &caprineHead();
    q.ears = {{.at = {0.02, 0.03}, .z = 0.24, .degrees = -8, .length = 22, .width = 4.2, .bend = 26}};
    q.elbow = {103, 146};
    q.hip = {198, 128};
    q.bone = 0.88;
    q.muscle = 0.82;
    q.shoulder = 15;
    q.spread = 10;
    q.foreFar = {-11, -13};
    q.hindFar = {-10, -14};
    q.foot = Foot::cloven;
    return q;
}

Quadruped sheep() {
    Quadruped q = goat();
    q.trunk = {{104, 136, 0, 29}, {124, 139, 0, 33}, {154, 141, 0, 34},
               {182, 136, 0, 31}, {202, 134, 0, 26}, {210, 138, 0, 18}};
    q.swellings = {};
    q.neck = {{104, 126, 0, 25}, {92, 110, 0, 20}, {84, 96, 0, 16}};
    q.head = {{77, 84}, 138, 45};
    q.headBuild = &ovineHead();
    q.elbow = {106, 156};
    q.hip = {202, 138};
    q.bone = 0.85;
    return q;
}

void hangingCoat(Plate& plate, Point from, Point to, double length, const Palette& palette, double tone) {
    const double span = engraver::length(to - from);
    const int locks = std::max(2, static_cast<int>(span / 4.2));
    for (int k = 0; k < locks; ++k) {
        const double q = (k + 0.5) / locks;
        const Point root = lerp(from, to, q) + Point{plate.random.around(1.5), plate.random.around(3)};
        const double fall = length * plate.random.uniform(0.75, 1.25);
        lock(plate, {root, root + Point{1.8, fall * 0.5}, root + Point{0.6 + plate.random.around(2), fall}},
             {2.2, 2.9, 2.4, 0.3},
             {.palette = palette, .strands = 6, .tone = tone, .contour = 0.4, .halo = 0.1, .shade = 0.1});
    }
}

} // namespace tambrelle::engraver
