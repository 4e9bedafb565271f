#include "plates/engraver/Ground.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/minerals/Stone.h"

using namespace tambrelle::engraver;

// Flint: a knobbly nodule with a white rind, broken open; the dark core breaks in shells, ring after ring
// about the blow. Struck with steel it gives sparks.
static const Subject subject{
    "day_106_silex", [](Plate& p) {
        ground(p, 70, 332, 292, 6);
        const ReliefSurface nodule = stone(p,
                                           closedSpline({{72, 252},
                                                         {84, 198},
                                                         {116, 172},
                                                         {150, 178},
                                                         {186, 152},
                                                         {236, 156},
                                                         {262, 186},
                                                         {298, 196},
                                                         {316, 236},
                                                         {306, 284},
                                                         {258, 304},
                                                         {196, 298},
                                                         {140, 308},
                                                         {92, 294}},
                                                        10),
                                           {.palette = palettes::chalk,
                                            .seed = 31,
                                            .facets = 0,
                                            .rough = 2.4,
                                            .grain = 30,
                                            .depth = 52,
                                            .ragged = 2.0,
                                            .tone = -0.04});
        strew(p, nodule, 120, {{1, sepia, 0.8}}, 0.4, 0.9);
        // The broken face: shells about the point of the blow, at its upper left.
        const Palette core{0xB9B0A6, 0x5C534C, 0x241F1D};
        const Path face = closedSpline({{126, 236},
                                        {142, 200},
                                        {184, 178},
                                        {232, 182},
                                        {268, 206},
                                        {286, 240},
                                        {270, 276},
                                        {222, 288},
                                        {164, 284},
                                        {134, 266}},
                                       12);
        p.knockOut(closedSpline({{120, 238},
                                 {138, 196},
                                 {182, 172},
                                 {234, 176},
                                 {274, 202},
                                 {292, 240},
                                 {274, 280},
                                 {222, 293},
                                 {162, 289},
                                 {129, 268}},
                                12),
                   {.halo = 0, .shade = 0});
        p.flat(closedSpline({{120, 238},
                             {138, 196},
                             {182, 172},
                             {234, 176},
                             {274, 202},
                             {292, 240},
                             {274, 280},
                             {222, 293},
                             {162, 289},
                             {129, 268}},
                            12),
               Colour{0xFBF7EA});
        p.contour(closedSpline({{120, 238},
                                {138, 196},
                                {182, 172},
                                {234, 176},
                                {274, 202},
                                {292, 240},
                                {274, 280},
                                {222, 293},
                                {162, 289},
                                {129, 268}},
                               12),
                  0.7);
        const Point blow{158, 206};
        ReliefForm r;
        r.palette = core;
        r.tone = 0.2;
        r.shade = 0;
        r.soften = 0.8;
        r.hatchFrom = 0.2;
        r.occlusion = false;
        r.lines = {0.62, 0.62, 0.3};
        r.height = [&](Point at, double depth) {
            const double d = length(at - blow);
            const double ring = d / 15.0 + 0.12 * maths::sin(angleOf(at - blow) * 0.12);
            const double saw = ring - std::floor(ring);
            return 1.5 * std::min(depth, 2.0) - 0.0012 * (d - 60) * (d - 60) +
                   3.2 * saw * saw * (1 - maths::smooth(0.9, 1, saw));
        };
        relief(p, face, r);
        const Plate::Clip clip(p, face);
        for (int k = 1; k < 9; ++k) // glints on the crests
            p.stroke(arc(blow, 15.0 * k - 3.5, 15.0 * k - 3.5, 5 + 3 * k, 70 - k, 30),
                     {.width = 1.1, .swell = 0.4, .fade = 0.4, .colour = Colour{0xEDE7DE}, .alpha = 0.9});
    }};
