#include "plates/engraver/carpentry/Soil.h"

#include "plates/engraver/Noise.h"
#include "plates/engraver/Relief.h"

namespace tambrelle::engraver {

void soil(Plate& plate, Point centre, double radiusX, double radiusY) {
    Path rough = ellipse(centre, radiusX, radiusY, 64);
    const Noise jag(plate.random.bits(), 2);
    for (std::size_t k = 0; k < rough.size(); ++k) {
        const Point d = unit(rough[k] - centre);
        rough[k] = rough[k] + d * (std::min(0.24 * radiusY, 4.0) * jag(rough[k].x / 9, d.y * 2 + 20));
    }
    const Noise lumps(plate.random.bits(), 3, 0.55);
    ReliefForm form;
    form.palette = palettes::earth;
    form.tone = 0.12;
    form.highlight = 0;
    form.spacing = 1.9;
    form.crossFrom = 0.8;
    form.soften = 1;
    form.occlusion = true;
    form.contour = 0.7;
    const double rise = std::min(radiusX, radiusY);
    form.height = [lumps, rise](Point at, double depth) {
        const double dome = rise * maths::smooth(0, rise, depth);
        return dome + 3.4 * lumps(at.x / 9, at.y / 6) * maths::smooth(0, 5, depth);
    };
    relief(plate, rough, form);
    for (int k = 0; k < static_cast<int>(radiusX / 4); ++k) { // crumbs
        const Point at{centre.x + plate.random.around(radiusX * 1.15),
                       centre.y + radiusY * plate.random.uniform(0.7, 1.15)};
        const double r = plate.random.uniform(0.9, 2.2);
        const Path crumb = ellipse(at, r * 1.3, r, 10);
        plate.knockOut(crumb, {.halo = 0.1, .shade = 0.2});
        plate.flat(crumb, palettes::earth, plate.random.uniform(0.3, 0.6));
        plate.contour(crumb, 0.5);
    }
}

} // namespace tambrelle::engraver
