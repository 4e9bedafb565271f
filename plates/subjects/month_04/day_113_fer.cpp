#include "plates/engraver/Face.h"
#include "plates/engraver/Ground.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/minerals/Block.h"

using namespace tambrelle::engraver;

// Iron: the smith's anvil with its horn, a horseshoe leaning on it, and a lump of the rust-red ore.
static const Subject subject{
    "day_113_fer", [](Plate& p) {
        const Palette iron{0xD6DADE, 0x848D95, 0x3E464D}, rust{0xE2A077, 0xA65431, 0x5A2413};
        ground(p, 66, 336, 294, 7);
        // The anvil: foot, waist and body as one relief, then the flat face and the horn.
        const Path body = joined(
            joined(spline({{150, 150},
                           {152, 176},
                           {160, 190},
                           {188, 206},
                           {194, 230},
                           {182, 254},
                           {158, 268},
                           {150, 292}},
                          8),
                   Path{{300, 292}}),
            spline({{292, 268}, {266, 254}, {252, 230}, {258, 206}, {290, 188}, {310, 176}, {312, 150}}, 8));
        ReliefForm r;
        r.palette = iron;
        r.bevel = 26;
        r.tone = 0.10;
        r.lines = {0.1, 0.95, 0.3};
        r.crossFrom = 0.7;
        relief(p, body, r);
        const Path horn = closedSpline(
            {{66, 146}, {100, 142}, {154, 140}, {158, 150}, {158, 180}, {136, 184}, {104, 172}, {80, 158}},
            12);
        r.bevel = 22;
        r.lines = {0.95, 0.15, 0.3};
        relief(p, horn, r);
        face(p, {{150, 150}, {312, 150}, {326, 134}, {164, 134}},
             {.tone = 0.08, .palette = palettes::steel, .spacing = 2.6, .gradient = 0.1, .gradientTo = 0});
        face(p, {{312, 150}, {326, 134}, {326, 158}, {311, 178}},
             {.tone = 0.75, .palette = iron, .lines = 90, .crossed = true});
        face(p, {{150, 150}, {312, 150}, {311, 164}, {151, 164}},
             {.tone = 0.34, .palette = palettes::steel, .lines = 0, .spacing = 1.9});
        const Path hardy{{288, 144}, {298, 144}, {302, 139}, {292, 139}};
        p.ink(hardy);
        // The horseshoe.
        const Path shoe =
            spline({{228, 300}, {214, 268}, {222, 232}, {252, 216}, {284, 230}, {294, 266}, {282, 300}}, 14);
        const Path side = normals(shoe);
        Path out, in;
        for (std::size_t i = 0; i < shoe.size(); ++i) {
            const double w = 9.5 + 2 * maths::sin(maths::pi * fraction(i, shoe.size()));
            out.push_back(shoe[i] - side[i] * w);
            in.push_back(shoe[i] + side[i] * w);
        }
        ReliefForm flat;
        flat.palette = palettes::steel;
        flat.bevel = 3.5;
        flat.shade = 0.5;
        flat.tone = -0.02;
        relief(p, band(out, in), flat);
        p.stroke(shoe, {.width = 2.2, .swell = 0.1, .fade = 0.1, .colour = Colour{0x6A737B}});
        for (const double t : {0.14, 0.24, 0.34, 0.66, 0.76, 0.86}) {
            const Point at = along(shoe, t), d = direction(angleAlong(shoe, t)), n = rightOf(d);
            p.ink({at - d * 3 - n * 1.6, at + d * 3 - n * 1.6, at + d * 3 + n * 1.6, at - d * 3 + n * 1.6});
        }
        // Ore.
        stone(p,
              {{70, 290}, {78, 256}, {104, 236}, {138, 240}, {158, 264}, {156, 296}, {120, 310}, {84, 308}},
              {.palette = rust,
               .seed = 17,
               .facets = 10,
               .rough = 1.4,
               .grain = 13,
               .depth = 34,
               .ragged = 1.8,
               .tone = 0.08});
        stone(
            p, {{150, 306}, {162, 292}, {182, 292}, {192, 306}, {174, 316}, {156, 314}},
            {.palette = rust, .seed = 23, .facets = 8, .rough = 0.9, .grain = 10, .depth = 14, .tone = 0.08});
    }};
