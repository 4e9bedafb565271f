#include "plates/engraver/botany/Inflorescence.h"

#include "plates/engraver/Lathe.h"
#include "plates/engraver/Light.h"
#include "plates/engraver/Tube.h"

namespace tambrelle::engraver {

using maths::lerp;

namespace {

// A thin stalk: a green line between two fine ink lines is all that its size bears.
void stalk(Plate& plate, const Path& spine, double radius, const Palette& palette) {
    tube(plate, spine, {radius, radius * 0.8},
         {.palette = palette, .spacing = 3, .contour = 0.55, .shade = 0.15});
}

} // namespace

FlowerAt flowers(const FlowerForm& form) {
    return [form](Plate& p, Point at, double degrees, double scale, int) {
        flower(p, at, degrees, form, scale);
    };
}
FlowerAt bells(const BellForm& form) {
    return
        [form](Plate& p, Point at, double degrees, double scale, int) { bell(p, at, degrees, form, scale); };
}
FlowerAt lips(double size, Palette palette) {
    return [=](Plate& p, Point at, double degrees, double scale, int side) {
        lipFlower(p, at, degrees, size * scale, palette, side);
    };
}
FlowerAt peas(double size, Palette palette, std::optional<Palette> wings) {
    return [=](Plate& p, Point at, double degrees, double scale, int side) {
        peaFlower(p, at, degrees, size * scale, palette, side, wings);
    };
}
FlowerAt florets(double radius, Palette palette, int petals) {
    return [=](Plate& p, Point at, double, double scale, int) {
        floret(p, at, radius * scale, palette, petals);
    };
}
FlowerAt composites(const CompositeForm& form) {
    return [form](Plate& p, Point at, double degrees, double scale, int) {
        compositeHead(p, at, degrees, form, scale);
    };
}
FlowerAt globes(const GlobeForm& form) {
    return [form](Plate& p, Point at, double degrees, double scale, int) {
        globeHead(p, at, degrees, form, scale);
    };
}

FlowerAt berries(double radius, Palette palette, double squash) {
    return [=](Plate& p, Point at, double degrees, double scale, int) {
        ball(p, polar(at, degrees, radius * scale * squash * 0.8), radius * scale,
             {.palette = palette, .direction = degrees + 180, .squash = squash});
    };
}

Inflorescence solitary(const FlowerAt& flower) {
    return [flower](Plate& p, const Path& stem) { flower(p, stem.back(), angleAlong(stem, 1), 1, 1); };
}

Inflorescence raceme(const Raceme& f) {
    return [f](Plate& p, const Path& stem) {
        for (int i = 0; i < f.nodes; ++i) {
            const double t = f.nodes > 1 ? i / static_cast<double>(f.nodes - 1) : 0.5;
            const double q = lerp(f.from, f.to, t), size = lerp(f.largest, f.smallest, t);
            const Point at = along(stem, q);
            const double way = angleAlong(stem, q), open = f.angle * (1 - 0.5 * t);
            for (int j = 0; j < f.perNode; ++j) {
                const bool last = i + 1 == f.nodes && j + 1 == f.perNode;
                int side = f.oneSided != 0 ? f.oneSided : ((i + j) % 2 == 0 ? 1 : -1);
                // Whorls: spread from side to side, the middle ones in front.
                double share = 1;
                if (f.perNode > 2) {
                    share = std::fabs(j - (f.perNode - 1) / 2.0) / ((f.perNode - 1) / 2.0);
                    side = j * 2 < f.perNode ? -1 : 1;
                }
                const double a = last && f.oneSided == 0 && f.nod == 0 ? way : way + side * open * share;
                const Point end = polar(at, a, f.pedicel * size + 0.5);
                if (f.nod > 0) {
                    const Point hang = end + Point{side * f.nod * 0.35 * size, f.nod * size};
                    stalk(p, {at, end, hang}, 0.75, f.stalk);
                    f.flower(p, hang, 90 - side * 10, size, side);
                } else {
                    if (f.pedicel > 1.5)
                        stalk(p, {at, end}, 0.75, f.stalk);
                    f.flower(p, end, a, size, side);
                }
            }
        }
    };
}

Inflorescence corymb(const Corymb& f) {
    return [f](Plate& p, const Path& stem) {
        struct Arm {
            double reach, angle;
            Point end;
        };
        std::vector<Arm> arms;
        const Point tip = stem.back();
        const double way = angleAlong(stem, 1);
        for (int i = 0; i < f.count; ++i) {
            const double t = f.count > 1 ? (i - (f.count - 1) / 2.0) / ((f.count - 1) / 2.0) : 0;
            const double a = way + t * f.spread / 2;
            arms.push_back(
                {std::fabs(t), a,
                 polar(tip, a, f.length * (1 - 0.12 * std::fabs(t)) * p.random.uniform(0.86, 1.05))});
        }
        std::stable_sort(arms.begin(), arms.end(),
                         [](const Arm& a, const Arm& b) { return a.reach > b.reach; });
        for (const Arm& arm : arms)
            stalk(p,
                  {tip, engraver::lerp(tip, arm.end, 0.5) + direction(way) * (f.length * 0.06 * arm.reach),
                   arm.end},
                  1, f.stalk);
        for (const Arm& arm : arms)
            f.flower(p, arm.end, arm.angle, f.scale, arm.angle < way ? -1 : 1);
    };
}

Inflorescence umbel(const Umbel& f) {
    return [f](Plate& p, const Path& stem) {
        const Point tip = stem.back();
        const double way = angleAlong(stem, 1);
        std::vector<std::pair<double, int>> order;
        order.reserve(static_cast<std::size_t>(f.rays));
        for (int k = 0; k < f.rays; ++k)
            order.emplace_back(-std::fabs(k - (f.rays - 1) / 2.0), k);
        std::stable_sort(order.begin(), order.end(),
                         [](const auto& a, const auto& b) { return a.first < b.first; });
        for (const auto& [unused, k] : order) {
            const double t = (k - (f.rays - 1) / 2.0) / std::max((f.rays - 1) / 2.0, 0.5);
            const double a = way + t * f.spread / 2;
            const double reach =
                f.length * (1 - (1 - f.flatness) * t * t * 0.6) * p.random.uniform(0.94, 1.05);
            const Point end = polar(tip, a, reach);
            tube(p, {tip, engraver::lerp(tip, end, 0.5) + direction(way) * (reach * 0.04), end},
                 {f.rayRadius, f.rayRadius * 0.6},
                 {.palette = f.stalk, .spacing = 2.5, .contour = 0.5, .shade = 0.1});
            for (int j = 0; j < f.raylets; ++j) {
                const double b = a + (j - (f.raylets - 1) / 2.0) / std::max((f.raylets - 1) / 2.0, 0.5) * 75;
                p.stroke({end, polar(end, b, f.rayletLength)},
                         {.width = 0.42, .swell = 0, .fade = 0, .wobble = 0});
            }
            for (int j = 0; j < f.raylets * 2; ++j) {
                const double b = a + p.random.around(95);
                const Point at = polar(end, b, f.rayletLength * p.random.uniform(0.6, 1.1));
                if (f.floret)
                    f.floret(p, at, b, 1, b < way ? -1 : 1);
                else
                    engraver::floret(p, at, f.floretRadius, f.palette);
            }
        }
    };
}

Inflorescence spike(const Spike& f) {
    return [f](Plate& p, const Path& stem) {
        const double size = arcLength(stem) * (1 - f.from);
        const Path s = resample(stem, 200);
        const Path n = normals(s);
        const auto place = [&](double t, double x) {
            const auto i =
                static_cast<std::size_t>(std::clamp((f.from + (1 - f.from) * t) * 199, 0.0, 199.0));
            return s[i] + n[i] * (x * f.radius * f.shape(t));
        };
        const int count = static_cast<int>(size * f.radius * 2 / (f.grain * f.grain * 1.7) * f.density);
        p.castShadows(false);
        // From the rim inwards, so that the middle stands out.
        for (int k = 0; k < count; ++k) {
            const double depth = 1 - (k + 0.5) / count;
            const double x =
                (p.random.chance(0.5) ? 1 : -1) * std::sqrt(p.random.uniform()) * (0.25 + 0.75 * depth);
            const double t = std::clamp(p.random.uniform(0, 1.0), 0.0, 0.99);
            const Point at = place(t, x);
            const bool other = p.random.chance(f.secondShare);
            const double tone =
                std::clamp(0.22 + 0.3 * x * (n[100].x > 0 ? 1 : -1) + p.random.around(0.1), 0.05, 0.75);
            const Path outline =
                ellipse(at, f.grain * p.random.uniform(0.8, 1.15), f.grain * p.random.uniform(0.7, 1.0), 10);
            p.knockOut(outline, {.halo = 0.15, .shade = 0});
            p.flat(outline, other ? f.second : f.palette, tone);
            p.contour(outline, {.width = 0.5, .lit = 0.3, .wobble = 0});
        }
        p.castShadows(true);
    };
}

Inflorescence panicle(const Panicle& f) {
    return [f](Plate& p, const Path& stem) {
        for (int i = 0; i < f.branches; ++i) {
            const double t = i / static_cast<double>(std::max(f.branches - 1, 1));
            const double q = lerp(f.from, 1, t);
            const Point at = along(stem, std::min(q, 1.0));
            const double way = angleAlong(stem, q);
            for (const int side : {-1, 1}) {
                const double reach = f.width * (1 - 0.88 * t) * p.random.uniform(0.88, 1.08);
                const double a = way + side * f.angle * (1 - 0.3 * t);
                const Point end = polar(at, a, reach) + Point{0, -reach * 0.25 * (f.rise - 0)};
                const Path branch = spline({at, polar(at, a, reach * 0.5),
                                            f.rise > 0 ? end : end + Point{side * reach * 0.1, reach * 0.55}},
                                           16);
                p.stroke(branch, {.width = 0.9, .swell = 0, .fade = 0.4});
                const int n = std::max(2, static_cast<int>(f.perBranch * (1 - 0.65 * t)));
                for (int k = 0; k < n; ++k) {
                    const double u = 0.25 + 0.75 * (k + 0.5) / n;
                    const double size = lerp(f.largest, f.smallest, u);
                    const Point from = along(branch, u);
                    const double b = angleAlong(branch, u) + (k % 2 == 0 ? 45 : -45);
                    const Point flower = polar(from, b, 3.0 * size + p.random.uniform(0, 2));
                    p.stroke({from, flower}, {.width = 0.45, .swell = 0, .fade = 0, .wobble = 0});
                    f.flower(p, flower, b, size, side);
                }
            }
        }
        f.flower(p, stem.back(), angleAlong(stem, 1), f.smallest, 1);
    };
}

Inflorescence coiledCyme(const CoiledCyme& f) {
    return [f](Plate& p, const Path& stem) {
        for (int branch = 0; branch < f.branches; ++branch) {
            const int side = branch % 2 == 0 ? 1 : -1;
            const int pair = branch / 2;
            const Point at = along(stem, 1 - 0.12 * pair);
            const double way = angleAlong(stem, 1) + side * f.angle;
            Path curl = spline(
                {at, polar(at, way - side * 6, f.length * 0.5), polar(at, way + side * 6, f.length)}, 16);
            const Point top = curl.back();
            const double leave = angleAlong(curl, 1);
            const Point centre = polar(top, leave + side * 90, f.radius);
            for (int k = 1; k <= 40; ++k) {
                const double turn = k / 40.0 * 430, r = f.radius * (1 - 0.72 * k / 40.0);
                curl.push_back(polar(centre, leave - side * 90 + side * turn, r));
            }
            tube(p, curl, {1.5, 1.1, 0.7}, {.palette = f.stalk, .spacing = 2});
            for (int k = f.count - 1; k >= 0; --k) {
                const double u = 0.28 + 0.66 * k / std::max(f.count - 1, 1),
                             size = lerp(f.largest, f.smallest,
                                         k / static_cast<double>(std::max(f.count - 1, 1)));
                const Point from = along(curl, u);
                const double out = angleAlong(curl, u) - side * 62;
                f.flower(p, polar(from, out, 1.5), out, size, side);
            }
        }
    };
}

Inflorescence together(const std::vector<Inflorescence>& parts) {
    return [parts](Plate& p, const Path& stem) {
        for (const Inflorescence& part : parts)
            part(p, stem);
    };
}

} // namespace tambrelle::engraver
