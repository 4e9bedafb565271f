// Gentian, Gentiana acaulis: a tuft of ribbed pointed leaves, great upright trumpets of deep blue whose five
// lobes spread at the mouth, in green five-toothed cups.

#include "plates/engraver/Path.h"
#include "plates/engraver/Sheet.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/CompoundLeaf.h"
#include "plates/engraver/botany/Leaf.h"
#include "plates/engraver/botany/Roots.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_319_gentiane", [](Plate& p) {
        const Palette deep = mix(palettes::blue, palettes::violet, 0.2);
        const LeafKind blade{
            .shape = {0.5, 0.85, 1, 0.9, 0.6, 0}, .parallel = true, .petiole = 0, .palette = palettes::leaf};
        rootlets(p, {200, 326}, 12, 90, 110, 30);
        for (const auto& [degrees, size] : {std::pair{-172.0, 112.0},
                                            {-8.0, 112.0},
                                            {-152.0, 104.0},
                                            {-28.0, 104.0},
                                            {164.0, 92.0},
                                            {16.0, 92.0}})
            growLeaf(p, {200, 318}, degrees, size, 19, blade, degrees < -90 || degrees > 90 ? 10 : -10);
        const auto trumpet = [&](const Path& stalk, double degrees, double size) {
            const Path curve = stem(p, stalk, {3.4, 3});
            const Point pair = along(curve, 0.5);
            for (const double side : {-1.0, 1.0})
                growLeaf(p, pair, angleAlong(curve, 0.5) + side * 50, 46 * size, 9 * size, blade);
            const Point at = stalk.back();
            Sheets sheets;
            const Frame frame(at, 30, degrees, 18);
            sheets.cup(frame, {.length = 96 * size,
                               .radius = 27 * size,
                               .shape = {0.22, 0.34, 0.5, 0.66, 0.78, 0.86, 0.94},
                               .tone = 0.2});
            for (int k = 0; k < 5; ++k)
                sheets.petal(frame, k * 72,
                             {.length = 34 * size,
                              .width = 17 * size,
                              .baseAngle = 26,
                              .tipAngle = 96,
                              .shape = {0.92, 1, 0.88, 0.55, 0},
                              .cup = 1.8,
                              .radius = 24 * size,
                              .offset = 90 * size},
                             p.random);
            sheets.engrave(p, {.palettes = {deep}, .contour = 0.85, .washLift = 0.12, .ambient = -0.06});
            for (const double turn : {-40.0, 40.0, -14.0, 14.0})
                leaf(p,
                     {at, polar(at, degrees + turn, 18 * size), polar(at, degrees + turn * 0.8, 38 * size)},
                     {.width = 6.5 * size, .shape = shapes::lance, .veins = 0, .parallel = true});
        };
        trumpet({{196, 318}, {170, 276}, {142, 244}}, -112, 0.92);
        trumpet({{204, 318}, {232, 280}, {260, 250}}, -66, 0.92);
        trumpet({{200, 318}, {204, 270}, {200, 200}}, -90, 1.12);
    }};
