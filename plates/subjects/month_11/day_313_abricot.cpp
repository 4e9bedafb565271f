// Apricot, Prunus armeniaca: round heart-based leaves, velvety orange globes with a seam and a red cheek; a
// half with its smooth keeled stone.

#include "plates/engraver/Ground.h"
#include "plates/engraver/Lathe.h"
#include "plates/engraver/Path.h"
#include "plates/engraver/Relief.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Branch.h"
#include "plates/engraver/botany/CompoundLeaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_313_abricot", [](Plate& p) {
        const Path bough = twig(p, {{66, 92}, {146, 66}, {226, 72}, {306, 56}}, {5.4, 4.2, 2.4});
        const LeafKind round{.shape = {0.35, 0.9, 1, 0.94, 0.78, 0.5, 0},
                             .margin = crenate(16, 0.06),
                             .veins = 6,
                             .petiole = 0.22,
                             .stalk = palettes::redstem};
        for (const BranchLeaf& l : {BranchLeaf{0.06, 124, 96, 34}, BranchLeaf{0.34, -132, 76, 28},
                                    BranchLeaf{0.66, -52, 80, 29}, BranchLeaf{0.97, 44, 100, 35}})
            growLeaf(p, along(bough, l.at), l.degrees, l.length, l.width, round);
        const Palette skin = mix(palettes::orange, palettes::yellow, 0.25);
        const auto apricot = [&](Point from, Point centre, double r) {
            stem(p, {from, lerp(from, centre + Point{0, -r}, 0.6), centre + Point{0, -r * 0.86}}, {2.6, 2.4},
                 palettes::bark);
            // The outline is drawn in at the stalk, where the seam runs into the dimple.
            const Path outline =
                closedSpline({centre + Point{r * 0.06, -r * 0.86}, centre + Point{r * 0.44, -r * 0.96},
                              centre + Point{r * 0.9, -r * 0.5}, centre + Point{r, r * 0.06},
                              centre + Point{r * 0.76, r * 0.68}, centre + Point{r * 0.1, r},
                              centre + Point{-r * 0.6, r * 0.82}, centre + Point{-r * 0.98, r * 0.24},
                              centre + Point{-r * 0.92, -r * 0.46}, centre + Point{-r * 0.4, -r * 0.96}});
            const auto seam = [=](double y) { return centre.x + r * 0.5 * (0.1 - (y * y - 0.7)); };
            relief(p, outline,
                   {.palette = skin,
                    .bevel = r,
                    .spacing = 2.3,
                    .coverage = 0.38,
                    .hatchFrom = 0.34,
                    .tint = [=](Point at, double, double, Colour colour) {
                        const double d = (at.x - centre.x) * 0.7 - (at.y - centre.y) * 0.5;
                        const double y = (at.y - centre.y) / r;
                        const double furrow = maths::exp(-(at.x - seam(y)) * (at.x - seam(y)) / 16);
                        const Colour cheek =
                            mix(colour, Colour(0xC8432A), 0.5 * maths::smooth(0.1 * r, 0.9 * r, d));
                        return mix(cheek, Colour(0x9A4A18), 0.45 * furrow);
                    }});
            Path line;
            for (int k = 0; k <= 16; ++k) {
                const double y = -0.88 + 1.84 * k / 16;
                line.push_back({seam(y), centre.y + y * r});
            }
            p.stroke(line, {.width = 1.5, .swell = 0.2, .fade = 0.4});
            for (int k = 0; k < 70; ++k) {
                const double a = p.random.uniform(0, 360), q = std::sqrt(p.random.uniform()) * 0.9;
                p.dot(polar(centre, a, q * r), 0.4, sepia, 0.5);
            }
        };
        apricot(along(bough, 0.3), {130, 158}, 60);
        apricot(along(bough, 0.56), {230, 154}, 58);
        ground(p, 196, 330, 326, 3);
        // The half, seen into: flesh about a hollow with the stone in it.
        const Point c{262, 268};
        const Path half = ellipse(c, 60, 54, 60);
        p.knockOut(half);
        p.flat(half, Colour(0xE08A2E));
        p.flat(ellipse(c, 56, 50, 60), Colour(0xF8C878));
        p.flat(ellipse(c + Point{2, 3}, 50, 44, 60), Colour(0xF4B45A), 0.6);
        for (int k = 0; k < 44; ++k) {
            const Point d = direction(k * 360.0 / 44);
            p.stroke(
                {c + Point{d.x * 38, d.y * 33}, c + Point{d.x * (48 + k % 3 * 2), d.y * (43 + k % 3 * 2)}},
                {.width = 0.6, .swell = 0.3, .fade = 0.5});
        }
        p.contour(half, 1);
        const Path stone =
            closedSpline({c + Point{0, -36}, c + Point{20, -20}, c + Point{26, 4}, c + Point{15, 27},
                          c + Point{0, 34}, c + Point{-15, 27}, c + Point{-26, 4}, c + Point{-20, -20}});
        relief(p, stone, {.palette = palettes::brown, .bevel = 26, .coverage = 0.4, .tone = 0.08});
        p.stroke(spline({c + Point{0, -34}, c + Point{9, 0}, c + Point{0, 32}}), {.width = 1.4});
        p.stroke(spline({c + Point{0, -34}, c + Point{14, 0}, c + Point{0, 32}}), {.width = 0.9});
    }};
