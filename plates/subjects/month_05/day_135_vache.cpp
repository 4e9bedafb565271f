#include "plates/engraver/Ground.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/zoology/Bovid.h"
#include "plates/engraver/zoology/Horn.h"

using namespace tambrelle::engraver;

// The cow: level back, slight horns, great udder with four teats before the hind legs; a pied coat.
static const Subject subject{
    "day_135_vache", [](Plate& p) {
        Quadruped cow = cattle();
        cow.hindFar = {6, 10};
        Body body = cow.body();
        const ChainForm udder{.blend = 6, .palette = 2};
        body.chain({{188, 160, 8, 11}, {195, 169, 10, 11.5}, {203, 165, 8, 9}}, udder);
        for (const double x : {189.0, 198.0})
            body.chain({{x, 176, 14, 2.4}, {x - 1, 184, 14, 1.5}}, {.blend = 3, .palette = 2});
        body.chain({{204, 172, 2, 2.2}, {204, 180, 2, 1.4}}, {.blend = 3, .palette = 2});
        Body::Style style = coat({palettes::whiteflower, palettes::brown, palettes::pink});
        style.marking = [pied = patches(12, 0.42, 46), &cow](Point q, double z) {
            const Point d = q - cow.head.poll;
            const double u = dot(d, direction(cow.head.degrees)) / cow.head.length;
            const double v = dot(d, direction(cow.head.degrees - 90)) / cow.head.length;
            const double blaze = maths::smooth(-0.10, -0.14, v) * maths::smooth(0.0, 0.1, u);
            const double neck =
                maths::smooth(106, 99, q.x + 0.3 * (q.y - 120)) * maths::smooth(158, 150, q.y);
            return std::max(pied(q, z) * maths::smooth(186, 178, q.y) * maths::smooth(104, 112, q.x),
                            neck * (1 - blaze));
        };
        horn(p, {{58, 82}, {49, 76}, {47, 67}, {52, 60}}, {3.4, 2.9, 0.8}, {.tip = palettes::black});
        body.engrave(p, style);
        body.fur(p, {.spacing = 3.2, .length = 6, .width = 0.5, .from = 0.5, .spread = 8});
        horn(p, {{66, 81}, {73, 73}, {71, 63}, {63, 58}}, {3.8, 3.2, 0.8}, {.tip = palettes::black});
        cow.finish(p);
        tuftedTail(p, {{226, 108}, {237, 118}, {239, 150}, {236, 178}}, 3.4, palettes::chalk,
                   palettes::brown);
        ground(p, 56, 248, 233);
        grassTufts(p, 60, 240, 238);
    }};
