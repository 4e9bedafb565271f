#include "plates/engraver/Body.h"
#include "plates/engraver/Ground.h"
#include "plates/engraver/Relief.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/zoology/Eye.h"

using namespace tambrelle::engraver;

// The field cricket from the side: great round head, antennae longer than the body, wings folded flat over
// the back with strong veins, thighs of the hind legs swollen for the leap, two tail bristles.
static const Subject subject{
    "day_085_grillon", [](Plate& p) {
        constexpr Palette dark{0xA88868, 0x5E4430, 0x2C1E16}, wing{0xE6C48C, 0xB08448, 0x66451F},
            thigh{0xD2A06A, 0x94602F, 0x4E3018};
        const TubeForm leg{.palette = dark, .spacing = 1.6, .tone = 0.02, .highlight = 0.05};
        const auto spines = [&p](Point from, Point to, int count, double size) {
            const Point n = rightOf(unit(to - from)) * -1, t = unit(to - from);
            for (int k = 0; k < count; ++k) {
                const Point at = lerp(from, to, 0.3 + 0.62 * k / count);
                p.stroke({at, at + n * size + t * size * 0.8}, Pen{.width = 1.1, .swell = 0, .fade = 0.7});
            }
        };
        // Antennae.
        p.stroke(spline({{62, 152}, {46, 118}, {58, 76}, {110, 48}, {178, 44}}),
                 Pen{.width = 1.7, .swell = 0, .fade = 0.9});
        p.stroke(spline({{58, 158}, {34, 136}, {26, 96}, {52, 56}, {96, 34}}),
                 Pen{.width = 1.7, .swell = 0, .fade = 0.9});
        // Far legs.
        tube(p, {{180, 182}, {214, 150}, {252, 116}}, {8, 8.6, 5, 2.6}, leg);
        tube(p, {{252, 116}, {266, 160}, {276, 220}}, {2.8, 2.2, 1.8}, leg);
        tube(p, {{276, 220}, {286, 224}, {298, 225}}, {2, 1.5, 0.8}, leg);
        tube(p, {{112, 194}, {96, 206}, {82, 224}}, {4, 3, 2}, leg);
        tube(p, {{134, 196}, {150, 208}, {158, 226}}, {4, 3, 2}, leg);
        // Tail bristles.
        for (const double y : {192.0, 184.0})
            tube(p, {{238, y - 2}, {262, y + (y - 188)}, {290, y + 3 * (y - 188)}}, {2.6, 1.5, 0.4}, leg);
        Body body;
        body.chain(
            {{134, 182, 0, 24}, {164, 186, 0, 27}, {202, 188, 0, 24}, {236, 188, 0, 11}, {246, 188, 0, 5}},
            {.blend = 10});
        body.chain({{104, 170, 0, 30}, {126, 174, 0, 28}}, {.blend = 3});
        body.chain({{72, 172, 0, 27}, {70, 176, 0, 26}}, {.blend = 2});
        body.chain({{60, 194, 6, 8}, {58, 202, 6, 5}}, {.blend = 3});
        Body::Style style;
        style.palettes = {dark};
        style.highlight = 0.07;
        style.contour = 1.0;
        style.cuts.from = 0.3;
        style.edge = 1.6;
        body.engrave(p, style);
        // Rings of the abdomen below the wing.
        for (int k = 0; k < 8; ++k) {
            const double x = 144 + k * 12.5;
            p.stroke(
                spline({{x, 186}, {x + 3.4, 198}, {x + 1, 213 - 0.9 * k - (k > 5 ? 5.0 * (k - 5) : 0.0)}}),
                Pen{.width = 0.95, .swell = 0.2, .fade = 0.3});
        }
        // The wing cover.
        ReliefForm lid;
        lid.palette = wing;
        lid.bevel = 12;
        lid.heightScale = 0.8;
        lid.lines = {0.3, 0.9, 0.3};
        const Path cover = closedSpline({{124, 150},
                                         {150, 146},
                                         {190, 152},
                                         {224, 164},
                                         {240, 178},
                                         {224, 188},
                                         {190, 192},
                                         {150, 192},
                                         {126, 186}},
                                        10);
        relief(p, cover, lid);
        {
            const Plate::Clip clip(p, cover);
            p.stroke(spline({{124, 166}, {160, 165}, {200, 170}, {240, 180}}),
                     Pen{.width = 1.5, .swell = 0.05, .fade = 0.4});
            for (int k = 0; k < 6; ++k)
                p.stroke(
                    spline({{128.0 + 5 * k, 148}, {150.0 + 9 * k, 156}, {164.0 + 14 * k, 167.0 + 0.9 * k}}),
                    Pen{.width = 0.9, .swell = 0.1, .fade = 0.4});
            for (int k = 0; k < 9; ++k)
                p.stroke(spline({{132.0 + 10 * k, 166.0 + 0.9 * k},
                                 {138.0 + 10.4 * k, 178.0 + 0.6 * k},
                                 {136.0 + 11 * k, 192}}),
                         Pen{.width = 0.8, .swell = 0.1, .fade = 0.4});
            for (int k = 0; k < 3; ++k)
                p.stroke(spline({{126, 172.0 + 6 * k}, {170, 174.0 + 6 * k}, {226, 180.0 + 4 * k}}),
                         Pen{.width = 0.6, .swell = 0.2, .fade = 0.5});
        }
        p.stroke(spline({{98, 142}, {100, 166}, {96, 198}}), Pen{.width = 0.8, .swell = 0.3, .fade = 0.4});
        // Face: eye, mouth parts, roots of the antennae.
        eye(p, {56, 168}, {.radius = 5.4, .iris = Colour{0x4A3424}, .pupilSize = 0.3, .lid = 0});
        for (int k = 0; k < 2; ++k)
            tube(p, {{50.0 + 8 * k, 198}, {46.0 + 9 * k, 208}, {52.0 + 9 * k, 217}}, {2.2, 1.7, 1.3}, leg);
        p.stroke(spline({{46, 186}, {54, 194}, {66, 196}}), Pen{.width = 1.0});
        p.stroke(spline({{48, 178}, {56, 182}, {60, 190}}), Pen{.width = 0.7});
        for (const Point& root : {Point{59, 156}, Point{53, 160}})
            tube(p, {root, root + Point{-4, -7}}, {2.6, 1.8}, leg);
        // Near legs: fore and middle, then the leaper.
        tube(p, {{94, 194}, {82, 206}, {74, 212}}, {5.4, 4.4, 3.4}, leg);
        tube(p, {{74, 212}, {64, 222}, {56, 232}}, {3.4, 2.6, 1.8}, leg);
        tube(p, {{56, 232}, {48, 234}, {40, 234}}, {1.9, 1.4, 0.8}, leg);
        tube(p, {{130, 200}, {122, 212}, {128, 216}}, {5.4, 4.4, 3.2}, leg);
        tube(p, {{127, 215}, {138, 224}, {146, 234}}, {3.2, 2.5, 1.8}, leg);
        tube(p, {{146, 234}, {138, 236}, {128, 236}}, {1.9, 1.4, 0.8}, leg);
        TubeForm great = leg;
        great.palette = thigh;
        great.spacing = 1.9;
        tube(p, {{156, 196}, {178, 168}, {204, 136}, {226, 106}}, {10, 14, 13, 8, 4.2, 3.4}, great);
        for (int k = 0; k < 9; ++k) {
            const Point c = lerp({162, 190}, {212, 126}, k / 8.0);
            p.stroke(spline({c + Point{-7.0 + 0.5 * k, -5.0 + 0.4 * k}, c + Point{0.6, 1},
                             c + Point{6.0 - 0.5 * k, 9.0 - 0.7 * k}}),
                     Pen{.width = 0.7, .swell = 0.3, .fade = 0.3});
        }
        tube(p, {{225, 106}, {236, 160}, {246, 226}}, {3.6, 2.8, 2.2}, leg);
        spines({225, 106}, {246, 226}, 7, 5.5);
        tube(p, {{246, 226}, {256, 233}, {270, 236}}, {2.4, 1.7, 0.9}, leg);
        ground(p, 40, 292, 236);
        grassTufts(p, 50, 286, 241, 8);
    }};
