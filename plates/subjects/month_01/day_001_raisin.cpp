// Vine, Vitis vinifera: a cluster of dark balls, palmate five-lobed leaves, a forked tendril opposite a leaf.

#include "plates/engraver/Lathe.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/CompoundLeaf.h"
#include "plates/engraver/botany/Roots.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_001_raisin", [](Plate& p) {
        twig(p, {{76, 72}, {140, 58}, {200, 64}, {266, 52}, {318, 60}}, {5, 4.2, 3.6});
        tendril(p, {250, 56}, 60, {.length = 36, .hand = -1});
        stem(p, {{200, 64}, {198, 80}, {196, 100}}, {2.4, 2});
        stem(p, {{160, 61}, {146, 72}, {138, 86}}, {1.9, 1.6});
        stem(p, {{228, 60}, {246, 74}, {256, 90}}, {1.8, 1.5});
        const std::vector<Lobe> lobes = {{-112, 0.58}, {-58, 0.84}, {0, 1}, {58, 0.82}, {112, 0.56}};
        palmateLeaf(p, {256, 90}, 62, 70, {.lobes = lobes, .sinus = 0.62, .teeth = 5, .toothHeight = 2.6});
        palmateLeaf(
            p, {138, 86}, 120, 82,
            {.lobes = lobes, .sinus = 0.60, .teeth = 5, .toothHeight = 2.8, .palette = palettes::leafy});
        struct Berry {
            double depth;
            Point at;
        };
        std::vector<Berry> cluster;
        const int rows[] = {5, 6, 6, 6, 5, 5, 4, 4, 3, 2, 1};
        double y = 114;
        for (const int n : rows) {
            for (int i = 0; i < n; ++i)
                cluster.push_back(
                    {p.random.uniform() + (i > 0 && i + 1 < n ? 0.6 : 0),
                     {198 + (i - (n - 1) / 2.0) * 15.6 + p.random.around(2), y + p.random.around(3)}});
            y += 14.6;
        }
        std::sort(cluster.begin(), cluster.end(),
                  [](const Berry& a, const Berry& b) { return a.depth < b.depth; });
        for (const Berry& berry : cluster)
            ball(p, berry.at, 10.6 + p.random.around(0.8),
                 {.palette = palettes::grape,
                  .direction = p.random.uniform(-105, -50),
                  .tone = 0.04 + 0.10 * (berry.at.x - 198) / 40 - (berry.depth > 0.9 ? 0.06 : 0)});
    }};
