#include "plates/engraver/Ground.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/zoology/Caprine.h"

using namespace tambrelle::engraver;

// The ewe: fleece, bare narrow face without horns, ears level; her lamb at her side.
static const Subject subject{
    "day_315_brebis", [](Plate& p) {
        Quadruped ewe = sheep();
        ewe.ears = {{.at = {0.06, 0.04}, .z = 0.42, .degrees = 14, .length = 25, .width = 5.4, .bend = 20}};
        ewe.foreFar = {-8, -10};
        Body body = ewe.body();
        addFleece(body, ewe.trunk, 4.6, p.random);
        addFleece(body, {{100, 122, 0, 24}, {90, 106, 0, 19}}, 4.2, p.random);
        body.chain({{74, 80, 2, 8}, {84, 84, 0, 10}}, {.blend = 5});
        body.chain({{214, 126, 0, 7}, {222, 136, 0, 6}, {224, 150, 0, 4}}, {.blend = 5});
        Body::Style style = coat({palettes::fleece, palettes::cream});
        style.marking = [](Point q, double) {
            return std::max(maths::smooth(0, 6, (66 - q.x) + (q.y - 84) * 0.2), maths::smooth(182, 188, q.y));
        };
        body.engrave(p, style);
        body.fur(p, {.spacing = 4.0,
                     .length = 8,
                     .width = 0.6,
                     .from = 0.05,
                     .spread = 60,
                     .curl = 200,
                     .where = [](Point q) { return q.y < 180 && (q.x > 80 || (q.x > 64 && q.y < 79)); }});
        ewe.finish(p);

        Quadruped lamb = sheep();
        lamb.trunk = {
            {106, 144, 0, 21}, {124, 145, 0, 23}, {150, 144, 0, 23}, {174, 138, 0, 20}, {184, 140, 0, 16}};
        lamb.neck = {{106, 136, 0, 18}, {98, 118, 0, 14}, {92, 104, 0, 12}};
        lamb.head = {{88, 96}, 146, 44};
        lamb.ears = {{.at = {0.04, 0.04}, .z = 0.38, .degrees = 24, .length = 22, .width = 5, .bend = 20}};
        lamb.elbow = {107, 150};
        lamb.hip = {182, 140};
        lamb.bone = 0.95;
        lamb.shoulder = 0;
        lamb.foreFar = {-12, -14};
        const Quadruped small = lamb.scaled(0.5, {30, 236});
        Body young = small.body();
        addFleece(young, small.trunk, 2.6, p.random);
        young.chain({{111, 192, 0, 2.6}, {115, 200, 0, 2.4}, {115, 208, 0, 1.6}}, {.blend = 2});
        Body::Style pale = coat({palettes::fleece, palettes::cream});
        pale.contour = 0.8;
        pale.edge = 1.2;
        young.engrave(p, pale);
        young.fur(p, {.spacing = 3.4,
                      .length = 5,
                      .width = 0.5,
                      .from = 0.1,
                      .spread = 60,
                      .curl = 180,
                      .where = [](Point q) { return q.y < 216 && q.x > 60; }});
        small.finish(p);
        ground(p, 48, 238, 234);
        grassTufts(p, 52, 234, 240, 8);
    }};
