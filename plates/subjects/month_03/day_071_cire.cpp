#include "plates/engraver/Ground.h"
#include "plates/engraver/Lathe.h"
#include "plates/engraver/Relief.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"

using namespace tambrelle::engraver;

// Wax: the yellow cake as it leaves the mould with a piece broken off, a bundle of white tapers, and one
// candle burning with its runs of wax.
static const Subject subject{
    "day_071_cire", [](Plate& p) {
        constexpr Palette yellow{0xFCEBB4, 0xE8C060, 0xA07828}, bleached{0xFFFEF4, 0xF2EAD0, 0xB5A682};
        // Burning candle.
        LatheForm column;
        column.palette = bleached;
        column.tilt = 0.2;
        column.lines = Lines::along;
        column.spacing = 2.2;
        const auto candle = [&p, &column, &bleached](Point foot, double height, double radius) {
            lathe(p, foot, height, {radius, radius, radius * 0.97, radius * 0.96}, column);
            const Point top = foot + Point{0, -height * 0.98};
            const Path pool = ellipse(top, radius * 0.96, radius * 0.24);
            p.knockOut(pool, {.halo = 0, .shade = 0});
            p.flat(pool, bleached, 0.2);
            p.contour(pool, 0.8);
            p.contour(ellipse(top + Point{0, 0.6}, radius * 0.6, radius * 0.13), 0.5);
            p.stroke(spline({top, top + Point{0.6, -6}, top + Point{2, -11}}),
                     Pen{.width = 1.8, .swell = 0, .fade = 0.2});
            return top;
        };
        ReliefForm run;
        run.palette = bleached;
        run.bevel = 5;
        run.shade = 0.2;
        run.spacing = 2;
        const Point a = candle({120, 232}, 136, 17);
        relief(p,
               closedSpline({a + Point{-17, 0}, a + Point{-8, 3.4}, a + Point{-7, 16}, a + Point{-9, 34},
                             a + Point{-7, 46}, a + Point{-11, 52}, a + Point{-15, 46}, a + Point{-14, 30},
                             a + Point{-18, 16}},
                            6),
               run);
        relief(p,
               closedSpline({a + Point{4, 4}, a + Point{12, 3}, a + Point{12, 16}, a + Point{10, 24},
                             a + Point{7, 26}, a + Point{5, 18}},
                            6),
               run);
        // Flame: a dark heart in a bright tongue, rays of light around it.
        const Point wick = a + Point{2, -11};
        const Path tongue = closedSpline({wick + Point{0, 3}, wick + Point{-8, -4}, wick + Point{-8.6, -14},
                                          wick + Point{-4, -26}, wick + Point{1, -42}, wick + Point{5, -27},
                                          wick + Point{9, -14}, wick + Point{8, -4}},
                                         8);
        for (int k = 0; k < 30; ++k) {
            const double angle = -90 + (k - 14.5) * 10.2;
            const Point c = wick + Point{0, -16};
            const double from = 30 + (k % 2) * 3 + 10 * std::fabs(maths::sin(maths::radians(angle)));
            p.stroke({polar(c, angle, from), polar(c, angle, from + (k % 2 == 0 ? 15.0 : 9.0))},
                     Pen{.width = 0.6, .swell = 0.2, .fade = 0.8, .colour = Colour{0x9A6A22}});
        }
        p.knockOut(tongue, {.halo = 0.4, .shade = 0});
        p.flat(tongue, palettes::flame.middle);
        const auto shrunk = [&wick](const Path& path, double kx, double ky) {
            Path out;
            for (const Point& q : path)
                out.push_back({wick.x + (q.x - wick.x) * kx, wick.y + (q.y - wick.y) * ky});
            return out;
        };
        p.flat(shrunk(tongue, 0.78, 0.80), palettes::flame.light);
        p.flat(shrunk(tongue, 0.44, 0.52), Colour{0xFFFDF0});
        p.flat(shrunk(tongue, 0.5, 0.22), palettes::flame.dark, 0.5);
        p.contour(tongue, {.width = 0.85, .lit = 0.7});
        p.stroke({wick + Point{-2, 11}, wick + Point{-1, 4}, wick + Point{0.5, -3}},
                 Pen{.width = 1.8, .swell = 0, .fade = 0.2});
        candle({78, 238}, 92, 13);

        // The cake: a low turned loaf with a wedge broken out to the right.
        LatheForm loaf;
        loaf.palette = yellow;
        loaf.tilt = 0.42;
        loaf.spacing = 2.2;
        loaf.hatchFrom = 0.3;
        lathe(p, {206, 214}, 48, {70, 69, 67, 65, 63}, loaf);
        const Point top{206, 214 - 48 * 0.907};
        const Path face = ellipse(top, 63, 26.5), rim = ellipse(top + Point{0, 1}, 55, 22);
        p.knockOut(face, {.halo = 0, .shade = 0});
        p.flat(face, yellow, 0.16);
        {
            const Plate::Clip clip(p, face);
            p.flat(moved(face, {26, 14}), yellow, 0.26);
            for (int k = 0; k < 16; ++k)
                p.stroke(spline({{150.0 + 7.4 * k, top.y + 30 - 0.5 * k},
                                 {164.0 + 7.0 * k, top.y + 14},
                                 {178.0 + 6.6 * k, top.y + 3}}),
                         Pen{.width = 0.6, .swell = 0.1, .fade = 0.8});
        }
        p.contour(face, 0.9);
        p.contour(rim, {.width = 0.5, .lit = 0.6});
        // The maker's mark: a bee's six cells pressed into the cake.
        for (int j = 0; j < 7; ++j) {
            const Point c = j == 6 ? top
                                   : top + Point{16.5 * maths::cos(maths::radians(60.0 * j)),
                                                 7.2 * maths::sin(maths::radians(60.0 * j))};
            Path cell;
            for (int v = 0; v < 6; ++v)
                cell.push_back(c + Point{9.2 * maths::cos(maths::radians(60.0 * v - 30)),
                                         4.0 * maths::sin(maths::radians(60.0 * v - 30))});
            p.flat(cell, yellow, 0.42);
            p.contour(cell, {.width = 0.8, .lit = 0.9});
            p.stroke({cell[4] + Point{-0.4, 0.6}, cell[5] + Point{-0.4, 0.6}},
                     Pen{.width = 1.2, .swell = 0.1, .fade = 0.3});
        }
        // Broken pieces before it, conchoidal like wax.
        ReliefForm chunk;
        chunk.palette = yellow;
        chunk.bevel = 9;
        chunk.creases = true;
        relief(p, {{128, 236}, {134, 218}, {150, 210}, {166, 216}, {172, 232}, {158, 242}, {138, 243}},
               chunk);
        for (int k = 0; k < 4; ++k)
            p.stroke(arc({146, 216}, 8.0 + 6 * k, 6.0 + 5 * k, 10, 100, 12),
                     Pen{.width = 0.65, .swell = 0.3, .fade = 0.4});
        relief(p, {{182, 242}, {190, 232}, {204, 233}, {208, 243}, {194, 248}}, chunk);
        // Bundle of tapers tied with a thread.
        for (int k = 0; k < 5; ++k) {
            const double y = 236 + (k % 2) * 5.4 + (k > 2 ? 9 : 0), x = 222 + (k % 3) * 3;
            tube(p, {{x, y}, {x + 46, y - 8}, {x + 88, y - 17}}, {4.2, 4, 3.4},
                 {.palette = bleached, .lines = Lines::along, .spacing = 1.9, .contour = 0.8});
            p.stroke(spline({{x + 87, y - 17}, {x + 93, y - 19}, {x + 98, y - 16}}),
                     Pen{.width = 1.2, .swell = 0, .fade = 0.4});
        }
        tube(p, {{258, 224}, {261, 238}, {266, 250}}, {1.8, 1.8, 1.8},
             {.palette = palettes::straw, .spacing = 1.4});
        ground(p, 44, 316, 238);
    }};
