#include "plates/engraver/Body.h"
#include "plates/engraver/Ground.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/zoology/Eye.h"

using namespace tambrelle::engraver;

// The cat: seated tabby, its round face turned to the viewer: wide cheeks, upright ears, slit pupils, short
// muzzle with whiskers; tail laid round the feet.
static const Subject subject{
    "day_115_chat", [](Plate& p) {
        constexpr Palette light{0xEFE7D8, 0xC2B39C, 0x7C6C58}, stripe{0xB5A58E, 0x6E5E4C, 0x3A2E24},
            bib{0xFFFFFF, 0xF2EDE2, 0xB8AE9C};
        ground(p, 84, 238, 236);
        Body body;
        body.chain({{136, 138, 0, 25}, {146, 164, 0, 32}, {162, 190, 0, 39}, {168, 204, 0, 33}},
                   {.blend = 20, .coat = 76});
        body.chain({{122, 130, 4, 21}, {116, 112, 6, 20}}, {.blend = 14});
        body.chain({{122, 148, 16, 17},
                    {117, 176, 22, 11},
                    {114, 204, 24, 8},
                    {113, 222, 26, 7.4},
                    {105, 227, 28, 7.4}},
                   {.blend = 8});
        body.chain({{146, 152, 14, 15},
                    {143, 180, 24, 11},
                    {141, 206, 27, 8.2},
                    {140, 223, 29, 7.8},
                    {131, 227, 31, 7.6}},
                   {.blend = 8});
        body.chain({{182, 192, 22, 28}, {178, 210, 30, 20}}, {.blend = 10, .coat = 100});
        body.chain({{182, 223, 32, 9}, {160, 227, 36, 8.2}}, {.blend = 6});
        body.chain({{194, 216, 0, 10},
                    {216, 224, 6, 8.6},
                    {222, 230, 14, 8},
                    {204, 236, 34, 7.6},
                    {176, 238, 42, 7.2},
                    {152, 238, 44, 6.2},
                    {144, 237, 44, 4}},
                   {.blend = 4});
        Body::Style style;
        style.palettes = {light, stripe, bib};

        style.marking = [](Point q, double z) {
            const double tail =
                maths::smooth(212, 220, q.y) * maths::smooth(30, 38, z + (q.x > 196 ? 30 : 0));
            const double wave = tail > 0.5 ? maths::sin(q.x * 0.42)
                                           : maths::sin((q.y * 0.55 + q.x * 0.75 -
                                                         5 * maths::sin(q.x * 0.05 + q.y * 0.04) + 0.3 * z) *
                                                        0.36);
            const double chest =
                maths::smooth(136, 126, q.x) * maths::smooth(112, 122, q.y) * maths::smooth(178, 166, q.y);
            return 0.9 * maths::smooth(0.2, 0.7, wave) * (1 - chest);
        };
        body.engrave(p, style);
        body.fur(p, {.spacing = 2.5, .length = 6, .width = 0.5, .from = 0.22, .spread = 12});
        for (const Point& toe : {Point{113, 233.5}, Point{139, 234}})
            for (const double k : {-10.5, -7.0, -3.6})
                p.stroke(spline({toe + Point{k + 2.2, -10}, toe + Point{k, -5}, toe + Point{k - 0.4, 0}}, 5),
                         Pen{.width = 1.35, .swell = 0.4, .fade = 0.2});

        // The head on its own, turned to the viewer.
        const Point c{112, 97};
        constexpr double k = 1.2;
        Body head;
        const auto local = [&c](double x, double y, double z, double r) {
            return Joint{c.x + k * x, c.y + k * y, k * z, k * r};
        };
        head.chain({local(-14, -15, -2, 11), local(-19.5, -29, 0, 5.5), local(-23, -40, 0, 1.0)},
                   {.blend = 4, .depth = 0.55, .coat = -100});
        head.chain({local(14, -15, -2, 11), local(19.5, -29, 0, 5.5), local(23, -40, 0, 1.0)},
                   {.blend = 4, .depth = 0.55, .coat = -80});
        head.chain({local(0, -3, 0, 26), local(0, 3, 0, 25.5)}, {.blend = 6, .coat = -90});
        head.chain({local(-13, 7, 3, 16), local(-22, 7, 1, 9.5)}, {.blend = 9, .coat = 160});
        head.chain({local(13, 7, 3, 16), local(22, 7, 1, 9.5)}, {.blend = 9, .coat = 20});
        head.chain({local(0, -12, 18, 9), local(0, 2, 23, 7.5), local(0, 7, 27, 5)},
                   {.blend = 9, .coat = -90});
        head.chain({local(-5.5, 13.5, 22, 8.2)}, {.blend = 3, .palette = 2, .coat = 170});
        head.chain({local(5.5, 13.5, 22, 8.2)}, {.blend = 3, .palette = 2, .coat = 10});
        head.chain({local(0, 21, 17, 6.4)}, {.blend = 3, .palette = 2, .coat = 90});
        Body::Style face = style;
        face.edge = 3.4;
        face.marking = [c](Point q, double) {
            const double x = std::fabs(q.x - c.x) / k, y = (q.y - c.y) / k;
            // The M of the forehead and the bars of the cheeks.
            const double crown = maths::smooth(0.1, 0.6, maths::cos(x * 0.72 - 0.4)) *
                                 maths::smooth(-9, -13, y) * maths::smooth(17, 13, x);
            const double cheek = maths::smooth(0.35, 0.75, maths::sin((y + 0.28 * (x - 20)) * 0.62 + 0.4)) *
                                 maths::smooth(14, 18, x) * maths::smooth(-8, -2, y);
            const double ear = maths::smooth(-27, -34, y);
            return 0.9 * std::max({crown, cheek, ear});
        };
        face.crossFrom = 1;
        face.ambient = -0.08;
        face.cuts.from = 0.44;
        head.engrave(p, face);
        head.fur(
            p,
            {.spacing = 2.3, .length = 5, .width = 0.40, .from = 0.12, .spread = 12, .where = [c](Point q) {
                 return length(Point{std::fabs(q.x - c.x) - 11.5 * k, q.y - c.y + 2}) > 9.5;
             }});
        for (const double s : {-1.0, 1.0}) {
            const auto at = [&c, s](double x, double y) { return c + Point{k * s * x, k * y}; };
            // Hollow of the ear with its fringe.
            const Path hollow = closedSpline(
                {at(10, -25), at(15.5, -28), at(21.8, -37), at(22.6, -27), at(21, -18), at(15, -20)}, 6);
            p.flat(hollow, Colour{0xD9A091}, 0.75);
            p.stroke(spline({at(10, -24), at(15.5, -28), at(21.8, -36.5)}, 6), Pen{.width = 0.6});
            for (int j = 0; j < 6; ++j)
                p.stroke(spline({at(11 + j * 1.9, -19.5 + 0.4 * j), at(13.5 + j * 1.4, -24),
                                 at(16 + j * 1.0, -29 + j)},
                                5),
                         Pen{.width = 0.6, .swell = 0.1, .fade = 0.8});
            eye(p, at(11.5, -1),
                {.radius = 7.2,
                 .iris = Colour{0xC7B64E},
                 .pupil = EyeForm::Pupil::slit,
                 .pupilSize = 0.52,
                 .degrees = s < 0 ? 14.0 : 166.0,
                 .open = 0.86,
                 .lid = 1.2});
            // Pale rim under the eye, shadow beside the nose.
            p.stroke(spline({at(4.2, 1.6), at(4.8, 5), at(4.2, 8)}, 5),
                     Pen{.width = 0.7, .swell = 0.4, .fade = 0.5});
            for (int j = 0; j < 9; ++j)
                p.stroke(spline({at(26 + 0.3 * j, 1 + 2.0 * j), at(29 + 0.1 * j, 4 + 2.0 * j),
                                 at(32.5 - 0.5 * j, 8 + 2.0 * j)},
                                5),
                         Pen{.width = 0.7, .swell = 0.2, .fade = 0.8});
            // Mouth and whiskers.
            p.stroke(spline({c + Point{0, 14} * k, at(2.6, 17.6), at(7, 18.2), at(11, 15.6)}, 6),
                     Pen{.width = 1.1, .swell = 0.1, .fade = 0.5});
            for (int j = 0; j < 5; ++j) {
                const double y = 10.4 + 1.6 * j;
                p.dot(at(5 + 1.6 * (j % 3), y), 0.55);
                p.stroke(spline({at(7.5, y), at(28, y - 5 + 2.6 * j),
                                 at(46 - 2 * std::fabs(j - 2.0), y - 7 + 5.4 * j)},
                                8),
                         Pen{.width = 0.55, .swell = 0.05, .fade = 0.9});
            }
        }
        const Path nose =
            closedSpline({c + Point{-4.4, 7} * k, c + Point{0, 6} * k, c + Point{4.4, 7} * k,
                          c + Point{3.2, 9.6} * k, c + Point{0, 12} * k, c + Point{-3.2, 9.6} * k},
                         5);
        p.knockOut(nose, {.halo = 0, .shade = 0});
        p.flat(nose, Colour{0xCB8478});
        p.contour(nose, {.width = 0.9, .lit = 0.7});
        for (const double s : {-1.0, 1.0})
            p.stroke(spline({c + Point{s * 1.2, 9.2} * k, c + Point{s * 2.6, 9.4} * k,
                             c + Point{s * 3.4, 8.4} * k},
                            5),
                     Pen{.width = 0.9});
        p.stroke({c + Point{0, 11.6} * k, c + Point{0, 13} * k, c + Point{0, 14.6} * k},
                 Pen{.width = 0.9, .swell = 0, .fade = 0});
    }};
