#include "plates/engraver/minerals/Vessel.h"

#include "plates/engraver/Face.h"

namespace tambrelle::engraver {

void mouth(Plate& plate, const LatheSurface& vessel, const MouthForm& form) {
    const Path rim = vessel.ring(1), inner = vessel.ring(1, 0, 360, -form.wall);
    plate.knockOut(rim, {.halo = 0, .shade = 0});
    plate.flat(rim, form.palette, 0.14);
    plate.contour(rim, 0.75);
    plate.knockOut(inner, {.halo = 0, .shade = 0});
    if (form.filling) {
        plate.flat(inner, *form.filling, 0.4);
    } else {
        // Light from the upper left falls on the right-hand wall inside.
        const Plate::Clip clip(plate, inner);
        face(plate, inner,
             {.tone = form.depth - 0.2,
              .palette = form.palette,
              .lines = angleOf(rightOf(unit(Point{vessel.axis.x, vessel.axis.y}))) + 90,
              .spacing = 2.0,
              .coverage = 0.62,
              .contour = 0,
              .gradient = 0.3,
              .gradientTo = 200,
              .halo = 0});
    }
    plate.contour(inner, 0.6);
}

} // namespace tambrelle::engraver
