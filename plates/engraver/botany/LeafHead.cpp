#include "plates/engraver/botany/LeafHead.h"

#include "plates/engraver/Light.h"
#include "plates/engraver/Relief.h"

namespace tambrelle::engraver {

using maths::lerp;
using maths::smooth;

void leafHead(Plate& plate, Point base, const LeafHeadForm& f) {
    Sheets sheets;
    const Frame frame(base, f.tilt, f.direction);
    for (int k = 0; k < f.leaves; ++k) {
        const double t = f.leaves > 1 ? k / (f.leaves - 1.0) : 1;
        Petal p{.length = lerp(f.innerLength, f.outerLength, t) * plate.random.uniform(0.95, 1.05),
                .width = lerp(f.innerWidth, f.outerWidth, t),
                .baseAngle = lerp(f.innerBase, f.outerBase, t) + plate.random.around(3),
                .tipAngle = lerp(f.innerTip, f.outerTip, t),
                .shape = f.shape,
                .cup = f.cup * lerp(0.75, 1.3, t),
                .curl = lerp(4, f.curl, t),
                .ruffle = f.ruffle * lerp(0.35, 1, t),
                .ruffleTurns = f.ruffleTurns,
                .radius = 2 + 6 * t,
                .rows = 30,
                .columns = f.ruffle > 2 ? 51 : 27};
        p.tone = [&f](double u, double v) {
            const double rib = v / 0.07;
            const double veins = maths::cos(2 * maths::pi * (u * 5 - std::fabs(v) * 1.3));
            return 0.32 * (1 - smooth(0, 0.8, u)) + 0.04 - f.rib * maths::exp(-rib * rib) * (1 - u) +
                   f.pucker * veins * smooth(0.08, 0.3, std::fabs(v));
        };
        sheets.petal(frame, k * 137.50776, p, plate.random);
    }
    sheets.engrave(plate, {.palettes = {f.tips ? Sheets::Style::Tint(f.palette, *f.tips)
                                               : Sheets::Style::Tint(f.palette)},
                           .spacing = f.spacing,
                           .coverage = 0.42,
                           .washLift = 0.06});
}

void curd(Plate& plate, Point centre, const CurdForm& f) {
    struct Knob {
        double rim;
        Point at, from;
    };
    std::vector<Knob> knobs;
    for (int k = 0; k < f.knobs; ++k) {
        const double rim = std::sqrt((k + 0.5) / f.knobs);
        const Point d = direction(k * 137.50776);
        knobs.push_back(
            {rim,
             centre + Point{d.x * rim * f.width, d.y * rim * f.height - 0.25 * f.height * (1 - rim * rim)},
             d * rim});
    }
    std::stable_sort(knobs.begin(), knobs.end(), [](const Knob& a, const Knob& b) { return a.rim > b.rim; });
    plate.flat(ellipse(centre, f.width * 0.96, f.height * 0.96), f.palette, 0.42);
    for (const Knob& knob : knobs) {
        const double r = f.knob * (1 - 0.22 * knob.rim) * plate.random.uniform(0.88, 1.1);
        const double phase = plate.random.uniform(0, 3);
        Path outline;
        for (int k = 0; k < 56; ++k) {
            const double a = 2 * maths::pi * k / 56;
            const double reach = r * (0.94 + 0.16 * maths::pow(std::fabs(maths::sin(a * 3.5 + phase)), 0.8));
            outline.push_back(knob.at + Point{reach * maths::cos(a), reach * 0.92 * maths::sin(a)});
        }
        const double tone = -0.05 + 0.18 * dot(knob.from, {0.5, 0.6});
        const ReliefSurface s = relief(plate, outline,
                                       {.palette = f.palette,
                                        .bevel = r * 0.9,
                                        .crossFrom = 0.85,
                                        .spacing = 1.9,
                                        .coverage = 0.4,
                                        .hatchFrom = 0.34,
                                        .tone = tone,
                                        .contour = 0.6,
                                        .shade = 0.28,
                                        .halo = 0.25,
                                        .occlusion = false});
        for (int k = 0; k < f.grains; ++k) {
            const Point p = knob.at + Point{plate.random.around(r * 0.8), plate.random.around(r * 0.75)};
            if (const auto t = s.toneAt(p))
                plate.stroke(arc(p, 1.1, 1.0, -20, 150, 8),
                             {.width = 0.4 + 0.5 * *t, .swell = 0.3, .fade = 0.3, .wobble = 0});
        }
    }
}

} // namespace tambrelle::engraver
