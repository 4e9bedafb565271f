#include "plates/engraver/Ground.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/zoology/Caprine.h"
#include "plates/engraver/zoology/Horn.h"
#include "plates/engraver/zoology/Locks.h"

using namespace tambrelle::engraver;

// The she-goat: short coat, short horns, small beard, long udder of two teats; her
// kid stands before her.
static const Subject subject{
    "day_165_chevre", [](Plate& p) {
        Quadruped doe = goat();
        doe.foreNear = {-2, -2};
        doe.hindNear = {4, 8};
        Body body = doe.body();
        const ChainForm udder{.blend = 5, .palette = 2};
        body.chain({{184, 156, 6, 10}, {186, 168, 8, 11.5}, {184, 174, 8, 9}}, udder);
        body.chain({{180, 181, 12, 3.2}, {177, 191, 13, 1.7}}, {.blend = 4, .palette = 2});
        body.chain({{189, 182, 6, 3}, {189, 191, 6, 1.6}}, {.blend = 4, .palette = 2});
        body.chain({{209, 115, 0, 5}, {219, 106, 0, 4.5}, {223, 97, 0, 2}}, {.blend = 4});
        Body::Style style = coat({palettes::fawn, palettes::darkwood, palettes::pink});
        style.marking = [](Point q, double) {
            const double back =
                maths::smooth(114, 108, q.y - 0.04 * (q.x - 100)) * maths::smooth(98, 104, q.x);
            const double socks = maths::smooth(196, 202, q.y);
            const double stripe = maths::smooth(3.4, 2.2, std::fabs((q.y - 86) - (68 - q.x) * 0.95)) *
                                  maths::smooth(70, 66, q.x);
            return 0.85 * std::max({back, socks, stripe});
        };
        horn(p, {{71, 66}, {74, 54}, {83, 44}, {94, 42}}, {3, 2.6, 1.8, 0.5}, {.rings = 6});
        body.engrave(p, style);
        body.fur(p, {.spacing = 2.7, .length = 6, .width = 0.5, .from = 0.42, .spread = 9});
        horn(p, {{77, 65}, {82, 51}, {93, 40}, {106, 39}}, {3.5, 3, 2, 0.5}, {.rings = 7});
        doe.finish(p);
        lock(p, {{57, 113}, {59, 119}, {57, 130}}, {3, 3, 0.3},
             {.palette = palettes::fawn, .strands = 16, .tone = 0.5});

        Quadruped kid = goat();
        kid.trunk = {
            {104, 138, 0, 21}, {122, 139, 0, 23}, {150, 139, 0, 22}, {176, 132, 0, 20}, {190, 130, 0, 18}};
        kid.swellings = {};
        kid.neck = {{104, 130, 0, 18}, {96, 112, 0, 14}, {90, 98, 0, 12}};
        kid.head = {{86, 90}, 140, 46};
        kid.ears[0].z = 0.36;
        kid.elbow = {105, 146};
        kid.hip = {188, 134};
        kid.bone = 0.86;
        kid.shoulder = 0;
        kid.foreFar = {-10, -8};
        const Quadruped small = kid.scaled(0.46, {36, 234});
        Body young = small.body();
        young.chain({{112, 186, 0, 2.5}, {118, 181, 0, 2}, {120, 177, 0, 0.8}}, {.blend = 2});
        Body::Style pale = coat({palettes::whiteflower, palettes::fawn});
        pale.contour = 0.8;
        pale.edge = 1.2;
        pale.marking = patches(5, 0.4, 20);
        young.engrave(p, pale);
        young.fur(p, {.spacing = 2.6, .length = 5, .width = 0.45, .from = 0.35, .spread = 12});
        small.finish(p);
        ground(p, 52, 236, 233);
        grassTufts(p, 60, 232, 239, 8);
    }};
