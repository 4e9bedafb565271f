#include "plates/engraver/botany/AwnedEar.h"

#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Leaf.h"

namespace tambrelle::engraver {

void huskedGrain(Plate& plate, Point at, double degrees, double length, double halfBreadth,
                 const Palette& palette, double tone) {
    leaf(plate, {at, polar(at, degrees, length * 0.5), polar(at, degrees, length)},
         {.width = halfBreadth,
          .shape = {0.5, 0.92, 1, 0.86, 0.5, 0.06},
          .palette = palette,
          .veins = 0,
          .parallel = true,
          .tone = tone,
          .contour = 0.8,
          .midrib = 0.65});
}

namespace {

struct Seat {
    double share;
    Point foot;
    double way;
    double lean;
    double length;
};

Seat seatOf(const Path& curve, const AwnedEarForm& f, int joint, double rank) {
    // Ranks of the two sides stand in turn; those between lie in the gaps of their neighbours.
    const double step =
        std::fabs(rank) > 0.75 ? (rank > 0 ? 0.5 : 0) : (std::fabs(rank) > 0.25 ? 0.25 : 0.75);
    const double q = (joint + step) / (f.joints + 0.5);
    const double way = angleAlong(curve, q);
    const Point foot = along(curve, q) + rightOf(direction(way)) * (rank * f.breadth);
    return {q, foot, way, rank * f.lean * (1 - 0.45 * q * q), f.grain * f.taper(q)};
}

void awn(Plate& plate, const AwnedEarForm& f, const Seat& seat, double rank) {
    const Point tip = polar(seat.foot, seat.way + seat.lean, seat.length * 0.94);
    // Ranks that face us send their awns to either side of the line of sight.
    const double lean = f.awnLean(seat.share), facing = 1 - std::fabs(rank);
    const double out = seat.way + rank * lean + plate.random.around(f.scatter + facing * lean * 0.45);
    const double reach = f.awn(seat.share) * plate.random.uniform(0.94, 1.04);
    const Point knee = polar(tip, (out * 2 + seat.way + seat.lean) / 3, reach * 0.3);
    plate.stroke(spline({tip, knee, polar(knee, out, reach * 0.7)}),
                 {.width = f.awnWidth, .swell = 0, .fade = 0.7, .wobble = 0.05});
}

} // namespace

void awnedEar(Plate& plate, const Path& spine, const AwnedEarForm& f) {
    const Path curve = spline(spine);
    const Seat crown{1, curve.back(), angleAlong(curve, 1), 0, f.grain * f.taper(1)};
    awn(plate, f, crown, 0);
    for (int joint = 0; joint < f.joints; ++joint)
        for (const double rank : f.ranks)
            awn(plate, f, seatOf(curve, f, joint, rank), rank);
    tube(plate, spine, {1.6, 0.8}, {.palette = f.palette, .shade = 0.1});
    huskedGrain(plate, polar(crown.foot, crown.way, -0.2 * f.grain), crown.way, crown.length * 1.2,
                crown.length * f.plumpness, f.palette);
    // From the tip down, each grain lying over the foot of the next above.
    for (int joint = f.joints - 1; joint >= 0; --joint)
        for (const double rank : f.ranks) {
            const Seat seat = seatOf(curve, f, joint, rank);
            const Point side = rightOf(direction(seat.way)) * rank;
            huskedGrain(plate, seat.foot, seat.way + seat.lean, seat.length,
                        seat.length * f.plumpness * (1 - 0.12 * (1 - std::fabs(rank))), f.palette,
                        0.1 * (side.x + side.y));
        }
}

void earSection(Plate& plate, Point centre, const EarSectionForm& f) {
    for (const double degrees : f.grains) {
        const Point middle = polar(centre, degrees, f.length * 0.56);
        const auto cut = [&](double share) {
            return turned(ellipse(middle, f.length * 0.5 * share, f.width * (share * 1.3 - 0.3), 30), degrees,
                          middle);
        };
        plate.knockOut(cut(1));
        plate.flat(cut(1), f.palette, 0.4);
        plate.flat(cut(0.74), palettes::cream, 0.1);
        plate.contour(cut(1), 1);
    }
    plate.dot(centre, f.length * 0.08);
}

} // namespace tambrelle::engraver
