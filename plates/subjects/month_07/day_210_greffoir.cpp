#include "plates/engraver/Face.h"
#include "plates/engraver/Ground.h"
#include "plates/engraver/Relief.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/botany/Leaf.h"
#include "plates/engraver/carpentry/Iron.h"
#include "plates/engraver/carpentry/Weave.h"
#include "plates/engraver/carpentry/Wood.h"

using namespace tambrelle::engraver;

// The grafting knife: a straight folding blade in scales of horn, beside a cleft graft bound with bast.
static const Subject subject{
    "day_210_greffoir", [](Plate& p) {
        // Stock and scion.
        pole(p, {{300, 306}, {298, 250}, {294, 190}}, {19, 17, 16}, palettes::bark);
        TubeForm bark;
        bark.palette = palettes::bark;
        bark.rough = 0.1;
        bark.tone = 0.05;
        tube(p, {{296, 220}, {290, 150}, {284, 84}}, {8, 7.5, 5}, bark);
        LeafForm young;
        young.width = 14;
        young.margin = serrate(9, 0.12);
        leaf(p, {{286, 112}, {308, 94}, {332, 92}}, young);
        leaf(p, {{284, 86}, {280, 70}, {294, 50}}, young);
        for (const Point at : {Point{281, 134}, Point{292, 156}})
            leaflet(p, at, at + Point{at.x < 288 ? -10.0 : 11.0, -15},
                    {.width = 4.5, .palette = palettes::burr});
        const Path slope =
            closedSpline({{279, 196}, {284, 186}, {294, 183}, {306, 188}, {311, 197}, {296, 202}}, 8);
        p.knockOut(slope, {.halo = 0, .shade = 0});
        p.flat(slope, palettes::tan, 0.15);
        p.contour(slope, 0.8);
        tube(p, {{296, 206}, {293, 180}, {290, 150}}, {7, 8, 7.6}, bark);
        for (int k = 6; k >= 0; --k)
            rope(p, {{276.0, 196.0 + k * 7}, {296, 205.0 + k * 7}, {317, 197.0 + k * 7}}, 4);
        // The knife: blade to the upper right, horn handle below.
        const Placement lie{{80, 286}, -52};
        const Path back = lie.at({{112, -10}, {150, -14}, {200, -15}, {236, -8}, {252, 2}});
        const Path edge = lie.at({{112, 14}, {150, 16}, {200, 17}, {236, 14}, {252, 2}});
        blade(p, back, edge, {.palette = palettes::steel, .tone = 0.22, .rib = 0.18, .contour = 1});
        p.stroke(lie.at({{140, -7}, {178, -8}, {216, -6}}), Pen{.width = 1, .swell = 0.2, .fade = 0.4});
        ReliefForm horn;
        horn.palette = palettes::horn;
        horn.bevel = 15;
        horn.heightScale = 0.8;
        horn.tone = 0.12;
        horn.contour = 1.1;
        horn.lines = {0.75, 0.6, 0.3};
        relief(p,
               closedSpline(lie.at({{-14, 2},
                                    {-6, -16},
                                    {30, -20},
                                    {80, -18},
                                    {116, -19},
                                    {126, -12},
                                    {128, 4},
                                    {124, 17},
                                    {80, 20},
                                    {30, 23},
                                    {-4, 20}}),
                            8),
               horn);
        face(p, lie.at({{104, -20}, {126, -19}, {130, -8}, {130, 8}, {126, 19}, {104, 20}}),
             {.tone = 0.3, .palette = palettes::brass, .contour = 0.9});
        for (const double u : {10.0, 52.0, 116.0}) {
            const Path pin = ellipse(lie.at(u, 0), u > 100 ? 5.5 : 3.6, u > 100 ? 5.5 : 3.6, 20);
            p.knockOut(pin, {.halo = 0.2});
            p.flat(pin, u > 100 ? palettes::iron : palettes::brass, 0.35);
            p.contour(pin, 0.9);
        }
        ground(p, 262, 340, 302, 4);
    }};
