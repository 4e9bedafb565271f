// The guillotine. Shown at 28 x 28: a plain silhouette of few thick parts, dark on white, with the blade's
// slant, the pale disc of the lunette and the bench to the left.

#include "plates/engraver/Face.h"
#include "plates/engraver/Subject.h"

using namespace tambrelle::engraver;

namespace {

Path box(double x0, double y0, double x1, double y1) {
    return {{x0, y0}, {x1, y0}, {x1, y1}, {x0, y1}};
}

} // namespace

static const Subject subject{
    "Guillotine", [](Plate& p) {
        const FaceForm timber{.tone = 0.62,
                              .palette = palettes::darkwood,
                              .lines = 90,
                              .spacing = 2.6,
                              .contour = 2.4,
                              .grain = 0.10,
                              .shade = 0.3};
        FaceForm level = timber;
        level.lines = 0;
        FaceForm far = timber;
        far.tone = 0.8;
        // Ground sill, uprights, head beam.
        face(p, box(88, 318, 314, 340), level);
        face(p, box(150, 38, 176, 320), timber);
        face(p, box(262, 38, 288, 320), far);
        face(p, box(136, 22, 302, 50), level);
        // The slanted blade under its weight: iron, the brightest thing between the uprights.
        face(p, box(176, 70, 262, 96),
             {.tone = 0.86, .palette = palettes::lead, .lines = 0, .spacing = 2.4, .contour = 2.2});
        face(p, {{176, 96}, {262, 96}, {262, 158}, {176, 124}},
             {.tone = 0.16,
              .palette = palettes::steel,
              .lines = 20,
              .spacing = 3,
              .contour = 2.6,
              .gradient = 0.12});
        p.stroke({{180, 118}, {258, 149}}, {.width = 1.2});
        p.stroke({{219, 50}, {219, 70}}, {.width = 3.2, .swell = 0, .fade = 0});
        // Lunette with its round hole.
        face(p, box(176, 226, 262, 284), timber);
        const Path hole = ellipse({219, 255}, 19, 19);
        p.knockOut(hole, {.halo = 0, .shade = 0});
        p.contour(hole, 2.6);
        // Bench and its legs.
        face(p, box(70, 274, 176, 292), level);
        face(p, box(84, 292, 102, 320), far);
        // Basket on the far side.
        face(p, {{292, 286}, {338, 286}, {330, 330}, {298, 330}},
             {.tone = 0.5,
              .palette = palettes::straw,
              .lines = 0,
              .spacing = 3,
              .contour = 2.2,
              .crossed = true});
    }};
