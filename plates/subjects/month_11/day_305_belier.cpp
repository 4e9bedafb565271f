#include "plates/engraver/Ground.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/zoology/Caprine.h"
#include "plates/engraver/zoology/Horn.h"

using namespace tambrelle::engraver;

// The ram: heavy fleece, arched nose, ribbed horns wound in a spiral round the ears.
static const Subject subject{
    "day_305_belier", [](Plate& p) {
        Quadruped ram = sheep();
        ram.head = {{74, 82}, 134, 50};
        ram.ears = {};
        ram.bone = 0.95;
        ram.foreFar = {-12, -10};
        Body body = ram.body();
        addFleece(body, ram.trunk, 5, p.random);
        addFleece(body, {{100, 122, 0, 25}, {90, 104, 0, 20}}, 4.5, p.random);
        Body::Style style = coat({palettes::fleece, palettes::tan});
        style.marking = [](Point q, double) {
            const double face = maths::smooth(0, 6, (70 - q.x) + (q.y - 84) * 0.2);
            const double legs = maths::smooth(180, 186, q.y);
            return std::max(face, legs);
        };
        horn(p, {{66, 74}, {58, 64}, {47, 68}, {43, 80}}, {6, 5, 3, 0.8}, {.rings = 8});
        body.engrave(p, style);
        body.fur(p, {.spacing = 4.0,
                     .length = 9,
                     .width = 0.65,
                     .from = 0.06,
                     .spread = 60,
                     .curl = 210,
                     .where = [](Point q) { return q.y < 178 && (q.x > 82 || (q.x > 68 && q.y < 82)); }});
        ram.finish(p);
        horn(p,
             {{74, 72}, {84, 58}, {103, 60}, {112, 80}, {103, 100}, {86, 104}, {74, 96}, {68, 88}, {58, 88}},
             {8.4, 8.6, 8.2, 7.4, 6.4, 5.2, 3.8, 2.4, 0.8}, {.rings = 26});
        ground(p, 64, 240, 233);
        grassTufts(p, 68, 234, 239, 6);
    }};
