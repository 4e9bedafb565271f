#include "plates/engraver/Body.h"
#include "plates/engraver/Relief.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"

using namespace tambrelle::engraver;

// The honey bee from above: three parts, six legs with the pollen basket on the last pair, four veined wings,
// banded abdomen, furry thorax, elbowed antennae.
static const Subject subject{
    "day_195_abeille", [](Plate& p) {
        constexpr Palette amber{0xF6D58C, 0xD59A3C, 0x7A4A18}, dark{0xB59C78, 0x5D4628, 0x2B1C0E},
            thorax{0xEFD8A4, 0xB28A4C, 0x5E4220}, pollen{0xFBE08A, 0xE8A93C, 0xA0621C};
        constexpr double cx = 160;
        const TubeForm leg{.palette = dark, .spacing = 1.6, .tone = 0.1, .highlight = 0.05};
        for (const double s : {-1.0, 1.0}) {
            const auto at = [s](double x, double y) { return Point{cx + s * x, y}; };
            tube(p, {at(16, 108), at(40, 94), at(52, 72)}, {4.2, 3.6, 2.6}, leg);
            tube(p, {at(52, 72), at(60, 60), at(72, 54)}, {2.6, 2.1, 1.0}, leg);
            tube(p, {at(18, 120), at(50, 124), at(70, 142)}, {4.2, 3.8, 2.8}, leg);
            tube(p, {at(70, 142), at(82, 148), at(94, 158)}, {2.6, 2.1, 1.0}, leg);
            tube(p, {at(14, 132), at(38, 156), at(54, 182)}, {4.6, 5.0, 5.4, 4.2}, leg);
            tube(p, {at(54, 182), at(62, 206), at(70, 228)}, {3.0, 3.2, 1.2}, leg);
            ReliefForm load;
            load.palette = pollen;
            load.bevel = 8;
            load.spacing = 1.9;
            relief(p,
                   closedSpline(
                       {at(44, 164), at(52, 162), at(60, 174), at(60, 186), at(52, 186), at(45, 176)}, 6),
                   load);
            tube(p, {at(6, 62), at(11, 50), at(15, 40)}, {1.9, 1.5, 1.4}, leg);
            tube(p, {at(15, 40), at(24, 32), at(36, 27)}, {1.7, 1.7, 1.3}, leg);
        }
        // Wings: the hind pair under the fore pair.
        struct Wing {
            Path outline;
            std::vector<Path> veins;
        };
        const Wing hind{
            {{14, 126}, {40, 132}, {70, 148}, {90, 166}, {92, 178}, {78, 180}, {52, 168}, {28, 150}},
            {{{14, 128}, {46, 146}, {84, 170}},
             {{18, 131}, {42, 152}, {66, 174}},
             {{50, 147}, {54, 158}, {62, 166}}}};
        const Wing fore{{{12, 110},
                         {40, 98},
                         {76, 88},
                         {112, 88},
                         {128, 98},
                         {126, 112},
                         {106, 124},
                         {72, 130},
                         {38, 124}},
                        {{{12, 111}, {44, 100}, {80, 91}, {118, 94}},
                         {{14, 114}, {48, 108}, {84, 102}, {116, 106}},
                         {{16, 116}, {50, 118}, {86, 118}, {108, 116}},
                         {{48, 108}, {52, 113}, {50, 118}},
                         {{68, 104}, {74, 111}, {70, 118}},
                         {{86, 102}, {94, 108}, {92, 117}},
                         {{78, 92}, {82, 97}, {84, 102}},
                         {{100, 92}, {104, 98}, {108, 105}}}};
        for (const Wing& w : {hind, fore})
            for (const double s : {-1.0, 1.0}) {
                const auto placed = [s](const Path& path) {
                    Path out;
                    for (const Point& q : path)
                        out.push_back({cx + s * q.x, q.y});
                    return out;
                };
                const Path outline = closedSpline(placed(w.outline), 10);
                p.knockOut(outline, {.halo = 0.3, .shade = 0.12});
                p.flat(outline, Colour{0xF6F1E2});
                {
                    const Plate::Clip clip(p, outline);
                    p.flat(moved(outline, {0, 9}), Colour{0xE6D9BC}, 0.6);
                    for (int k = 0; k < 26; ++k) {
                        const Point c{cx + s * (20.0 + 4.4 * k), 0};
                        p.stroke({{c.x, 84}, {c.x + s * 7, 132}, {c.x + s * 13, 190}},
                                 Pen{.width = 0.26, .swell = 0, .fade = 0, .wobble = 0.5});
                    }
                }
                for (const Path& vein : w.veins)
                    p.stroke(spline(placed(vein)), Pen{.width = 0.95, .swell = 0.05, .fade = 0.25});
                p.contour(outline, {.width = 0.9, .lit = 0.7});
            }
        Body abdomen;
        abdomen.chain(
            {{cx, 146, 0, 25}, {cx, 176, 0, 31}, {cx, 206, 0, 25}, {cx, 234, 0, 9}, {cx, 241, 0, 3}},
            {.blend = 10, .coat = 90});
        Body::Style style;
        style.palettes = {amber, dark};
        style.highlight = 0.07;
        style.cuts.normal = {0.05, 0.95, -0.35};
        style.cuts.spacing = 2.0;
        style.cuts.from = 0.28;
        style.crossFrom = 0.75;
        style.marking = [](Point q, double) {
            const double x = q.x - cx;
            return maths::smooth(0.0, 0.5, maths::sin((q.y - 136 + x * x * 0.008) * 0.36));
        };
        abdomen.engrave(p, style);
        abdomen.fur(p, {.spacing = 3, .length = 5, .width = 0.5, .from = 0.2, .spread = 16});
        Body front;
        front.chain({{cx, 112, 0, 28}, {cx, 118, 0, 28}}, {.blend = 4, .coat = 90});
        front.chain({{cx - 6, 72, 0, 18}, {cx + 6, 72, 0, 18}}, {.blend = 4, .coat = -90});
        Body::Style fuzzy = style;
        fuzzy.marking = {};
        fuzzy.cuts = {.normal = {0.42, 0.72, 0.55}, .spacing = 2.3, .coverage = 0.48};
        fuzzy.crossFrom = 0.66;
        fuzzy.palettes = {thorax};
        fuzzy.contour = 0.6;
        fuzzy.cuts.from = 0.45;
        front.engrave(p, fuzzy);
        front.fur(p, {.spacing = 2.0, .length = 8, .width = 0.7, .from = 0, .spread = 40});
        for (int k = 0; k < 70; ++k) {
            // The pelt stands out beyond the thorax.
            const double a = 360.0 * k / 70 + p.random.around(3);
            const Point at = Point{cx, 115} + direction(a) * p.random.uniform(24, 28);
            p.stroke({at, at + direction(a + p.random.around(18)) * p.random.uniform(5, 9)},
                     Pen{.width = 0.7, .swell = 0, .fade = 0.8});
        }
        ReliefForm bead;
        bead.palette = palettes::black;
        bead.bevel = 8;
        bead.tone = 0.1;
        bead.highlight = 0.05;
        for (const double s : {-1.0, 1.0})
            relief(p, turned(ellipse({cx + s * 17.5, 72}, 7, 12.5), s * -14, {cx + s * 17.5, 72}), bead);
        bead.bevel = 2;
        for (const Point& ocellus : {Point{cx, 61}, Point{cx - 5, 65}, Point{cx + 5, 65}})
            p.dot(ocellus, 1.5);
        p.stroke(spline({{cx - 6, 55}, {cx, 53}, {cx + 6, 55}}), Pen{.width = 1.2});
    }};
