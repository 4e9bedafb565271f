#include "plates/engraver/Face.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/carpentry/Wood.h"

using namespace tambrelle::engraver;

// The machine with its falling edge. It is shown very small as well, hence few parts, broad and dark.
static const Subject subject{"Guillotine", [](Plate& p) {
                                 const auto timber = [&p](const Path& outline, double tone, double lines) {
                                     face(p, outline,
                                          {.tone = tone,
                                           .palette = palettes::darkwood,
                                           .lines = lines,
                                           .contour = 2.2,
                                           .grain = 0.12,
                                           .shade = 0.4});
                                 };
                                 // Blade and weight run between the posts.
                                 timber({{136, 66}, {264, 66}, {264, 96}, {136, 96}}, 0.78, 0);
                                 face(p, {{136, 94}, {264, 94}, {264, 198}, {136, 130}},
                                      {.tone = 0.62,
                                       .palette = palettes::lead,
                                       .lines = 26,
                                       .spacing = 2.6,
                                       .contour = 2.4,
                                       .gradient = 0.2,
                                       .gradientTo = -60});
                                 // The ground edge catches the light.
                                 face(p, {{136, 120}, {264, 188}, {264, 198}, {136, 130}},
                                      {.tone = 0.16, .palette = palettes::steel, .contour = 1.8});
                                 // The lunette.
                                 timber({{138, 226}, {262, 226}, {262, 290}, {138, 290}}, 0.72, 0);
                                 const Path opening = ellipse({200, 258}, 21, 21);
                                 p.highlight(opening);
                                 p.contour(opening, {.width = 3, .lit = 0.9});
                                 p.stroke({{138, 258}, {179, 258}}, Pen{.width = 2, .swell = 0, .fade = 0});
                                 p.stroke({{221, 258}, {262, 258}}, Pen{.width = 2, .swell = 0, .fade = 0});
                                 // Struts, posts, head and sill.
                                 bar(p, {70, 312}, {120, 222}, 17, 0.64, palettes::darkwood);
                                 bar(p, {330, 312}, {280, 222}, 17, 0.86, palettes::darkwood);
                                 timber({{106, 30}, {140, 30}, {140, 308}, {106, 308}}, 0.62, 90);
                                 timber({{260, 30}, {294, 30}, {294, 308}, {260, 308}}, 0.84, 90);
                                 timber({{88, 20}, {312, 20}, {312, 52}, {88, 52}}, 0.66, 0);
                                 timber({{50, 296}, {350, 296}, {350, 328}, {50, 328}}, 0.72, 0);
                             }};
