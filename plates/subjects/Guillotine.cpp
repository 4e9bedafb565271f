#include "plates/engraver/Face.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/carpentry/Wood.h"

using namespace tambrelle::engraver;

// The machine with its falling edge. It is shown very small as well, hence few parts, broad and dark.
static const Subject subject{"Guillotine", [](Plate& p) {
    const auto post = [&p](double x, double tone) {
        face(p, {{x - 15, 62}, {x + 15, 62}, {x + 15, 300}, {x - 15, 300}}, {.tone = tone, .palette = palettes::darkwood, .lines = 90, .contour = 2, .grain = 0.12, .halo = 0.6});
    };
    // Blade and weight between the posts.
    face(p, {{140, 92}, {260, 92}, {260, 118}, {140, 118}}, {.tone = 0.75, .palette = palettes::darkwood, .lines = 0, .contour = 2, .grain = 0.1});
    face(p, {{140, 116}, {260, 116}, {260, 196}, {140, 148}}, {.tone = 0.42, .palette = palettes::lead, .lines = 22, .spacing = 2.6, .contour = 2.4, .gradient = 0.2, .gradientTo = -60});
    const Path edge{{140, 140}, {260, 188}, {260, 197}, {140, 149}};
    p.flat(edge, white);
    p.contour(edge, 1.6);
    // The lunette.
    const Path board{{142, 222}, {258, 222}, {258, 276}, {142, 276}};
    face(p, board, {.tone = 0.7, .palette = palettes::darkwood, .lines = 0, .contour = 2.2, .grain = 0.12});
    const Path opening = ellipse({200, 249}, 19, 19);
    p.highlight(opening);
    p.contour(opening, {.width = 3, .lit = 0.9});
    p.stroke({{142, 249}, {181, 249}}, Pen{.width = 2, .swell = 0, .fade = 0});
    p.stroke({{219, 249}, {258, 249}}, Pen{.width = 2, .swell = 0, .fade = 0});
    post(128, 0.62);
    post(272, 0.82);
    face(p, {{100, 50}, {300, 50}, {300, 80}, {100, 80}}, {.tone = 0.66, .palette = palettes::darkwood, .lines = 0, .contour = 2.2, .grain = 0.12, .shade = 0.4});
    // Struts and sill.
    bar(p, {76, 296}, {120, 226}, 15, 0.6, palettes::darkwood);
    bar(p, {324, 296}, {280, 226}, 15, 0.84, palettes::darkwood);
    face(p, {{62, 284}, {338, 284}, {338, 312}, {62, 312}}, {.tone = 0.7, .palette = palettes::darkwood, .lines = 0, .contour = 2.2, .grain = 0.12, .shade = 0.4});
}};
