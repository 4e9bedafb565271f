#include "plates/engraver/Body.h"

#include "plates/engraver/Light.h"

namespace tambrelle::engraver {

using maths::clamp01;
using maths::smooth;

namespace {

constexpr int coarse = Plate::scale / 2; // pixels a unit of the depth map
constexpr int tile = 8;

double blended(double d, double other, double reach) {
    if (reach <= 0)
        return std::min(d, other);
    const double h = std::max(reach - std::fabs(d - other), 0.0) / reach;
    return std::min(d, other) - h * h * reach * 0.25;
}

double unionDistance(const std::vector<const Body::Cone*>& cones, double x, double y, double z) {
    double d = 1e9;
    for (const Body::Cone* c : cones)
        d = blended(d, c->distance(x, y, z), c->blend);
    return d;
}

} // namespace

void Body::Cone::prepare() {
    ba = b - a;
    ba.z /= flat;
    l2 = dot(ba, ba);
    rr = ra - rb;
    a2 = l2 - rr * rr;
    il2 = l2 > 1e-9 ? 1 / l2 : 0;
}

// The exact distance to a round cone (two spheres and their common tangent cone).
double Body::Cone::distance(double x, double y, double z) const {
    const double px = x - a.x, py = y - a.y, pz = (z - a.z) / flat;
    double d;
    if (l2 < 1e-6 || a2 <= 0) {
        const double qx = x - b.x, qy = y - b.y, qz = (z - b.z) / flat;
        d = std::min(std::sqrt(px * px + py * py + pz * pz) - ra,
                     std::sqrt(qx * qx + qy * qy + qz * qz) - rb);
    } else {
        const double s = px * ba.x + py * ba.y + pz * ba.z, t = s - l2;
        const double cx = px * l2 - ba.x * s, cy = py * l2 - ba.y * s, cz = pz * l2 - ba.z * s;
        const double x2 = cx * cx + cy * cy + cz * cz, y2 = s * s * l2, z2 = t * t * l2;
        const double k = (rr > 0 ? 1 : (rr < 0 ? -1 : 0)) * rr * rr * x2;
        if ((t > 0 ? 1 : -1) * a2 * z2 > k)
            d = std::sqrt(x2 + z2) * il2 - rb;
        else if ((s > 0 ? 1 : -1) * a2 * y2 < k)
            d = std::sqrt(x2 + y2) * il2 - ra;
        else
            d = (std::sqrt(std::max(x2 * a2 * il2, 0.0)) + s * rr) * il2 - ra;
    }
    return flat < 1 ? d * flat : d;
}

Body& Body::chain(const std::vector<Joint>& joints, const ChainForm& form) {
    for (std::size_t i = 0; i < joints.size() && (i + 1 < joints.size() || joints.size() == 1); ++i) {
        const Joint& p = joints[i];
        const Joint q = joints.size() == 1 ? Joint{p.x + 0.01, p.y, p.z, p.radius} : joints[i + 1];
        Cone c;
        c.a = {p.x, p.y, p.z};
        c.b = {q.x, q.y, q.z};
        c.ra = p.radius;
        c.rb = q.radius;
        c.blend = form.blend;
        c.flat = form.depth;
        c.palette = form.palette;
        c.coat = form.coat ? direction(*form.coat) : unit(Point{q.x - p.x, q.y - p.y});
        c.prepare();
        cones_.push_back(c);
    }
    return *this;
}

Body& Body::mirror(double axis) {
    for (Cone& c : cones_) {
        c.a.x = 2 * axis - c.a.x;
        c.b.x = 2 * axis - c.b.x;
        c.coat.x = -c.coat.x;
        c.prepare();
    }
    return *this;
}

void Body::engrave(Plate& plate, const Style& style) {
    Bounds bounds;
    for (const Cone& c : cones_) {
        for (const auto& [p, r] : {std::pair{c.a, c.ra}, std::pair{c.b, c.rb}}) {
            bounds.add({p.x - r - 5, p.y - r - 5});
            bounds.add({p.x + r + 5, p.y + r + 5});
        }
    }
    const auto edge = [](double v, int limit) {
        return std::clamp(static_cast<int>(v), -Plate::bleed * coarse, limit + Plate::bleed * coarse);
    };
    window_.x = edge(std::floor(bounds.left * coarse), Plate::width * coarse);
    window_.y = edge(std::floor(bounds.top * coarse), Plate::height * coarse);
    window_.width = edge(std::ceil(bounds.right * coarse), Plate::width * coarse) - window_.x;
    window_.height = edge(std::ceil(bounds.bottom * coarse), Plate::height * coarse) - window_.y;
    const int w = window_.width, h = window_.height;
    if (w < 4 || h < 4)
        return;
    const std::size_t colours = style.palettes.size();
    depth_ = Field(w, h, -1e9F);
    hit_ = Field(w, h);
    tone_ = Field(w, h);
    facing_ = Field(w, h);
    coat_ = Grid<Point>(w, h);
    Field rim(w, h, 3.0F); // signed distance to the silhouette, about, in units
    Grid<Colour> wash(w, h);
    Grid<Vector3> normal(w, h);
    std::vector<Field> shares(colours, Field(w, h));

    constexpr double half = tile / 2.0;
    std::vector<const Cone*> near;
    for (int ty = 0; ty < h; ty += tile)
        for (int tx = 0; tx < w; tx += tile) {
            // Only cones whose shadow on the plate comes near this tile can matter here.
            const double cx = (tx + window_.x + half) / coarse;
            const double cy = (ty + window_.y + half) / coarse;
            const double reach = 0.75 * tile / coarse + 3.5;
            near.clear();
            double front = -1e9, back = 1e9;
            for (const Cone& c : cones_) {
                const Point a{c.a.x, c.a.y}, b{c.b.x, c.b.y}, p{cx, cy};
                const double t = clamp01(dot(p - a, b - a) / std::max(dot(b - a, b - a), 1e-9));
                if (length(p - lerp(a, b, t)) > std::max(c.ra, c.rb) + c.blend * 0.6 + reach)
                    continue;
                near.push_back(&c);
                const double thick = std::max(c.ra, c.rb) + c.blend * 0.3 + 1;
                front = std::max(front, std::max(c.a.z, c.b.z) + thick);
                back = std::min(back, std::min(c.a.z, c.b.z) - thick);
            }
            if (near.empty())
                continue;
            for (int y = ty; y < std::min(ty + tile, h); ++y)
                for (int x = tx; x < std::min(tx + tile, w); ++x) {
                    const double px = (x + window_.x + 0.5) / coarse, py = (y + window_.y + 0.5) / coarse;
                    double z = front, closest = 1e9;
                    bool found = false;
                    for (int step = 0; step < 90; ++step) {
                        const double d = unionDistance(near, px, py, z);
                        closest = std::min(closest, d);
                        if (d < 0.05) {
                            found = true;
                            break;
                        }
                        z -= std::max(d * 0.92, 0.05);
                        if (z < back)
                            break;
                    }
                    if (!found) {
                        rim(x, y) = static_cast<float>(std::min(closest, 3.0));
                        continue;
                    }
                    hit_(x, y) = 1;
                    depth_(x, y) = static_cast<float>(z);
                    constexpr double e = 0.35;
                    const double d0 = unionDistance(near, px + e, py - e, z - e),
                                 d1 = unionDistance(near, px - e, py - e, z + e);
                    const double d2 = unionDistance(near, px - e, py + e, z - e),
                                 d3 = unionDistance(near, px + e, py + e, z + e);
                    const Vector3 n = unit(Vector3{d0 - d1 - d2 + d3, d2 + d3 - d0 - d1, d1 + d3 - d0 - d2});
                    normal(x, y) = n;
                    facing_(x, y) = static_cast<float>(n.z);
                    rim(x, y) = static_cast<float>(-std::min(3.0, 2 * std::sqrt(std::max(n.z, 0.0))));
                    double total = 0;
                    Point coat;
                    for (const Cone* c : near) {
                        const double share = maths::exp(-std::max(c->distance(px, py, z), 0.0) / 2.5);
                        total += share;
                        coat = coat + c->coat * share;
                        const auto k = std::min(static_cast<std::size_t>(c->palette), colours - 1);
                        shares[k](x, y) += static_cast<float>(share);
                    }
                    for (Field& f : shares)
                        f(x, y) /= static_cast<float>(total);
                    coat_(x, y) = coat * (1 / total);
                }
        }

    // Tone: light, and shade in the hollows.
    Field hollow(w, h);
    for (const auto& [sigma, strength] : {std::pair{5.0, 0.012}, std::pair{12.0, 0.008}}) {
        Field z(w, h), share = hit_;
        for (int y = 0; y < h; ++y)
            for (int x = 0; x < w; ++x)
                z(x, y) = hit_(x, y) > 0 ? depth_(x, y) : 0;
        blur(z, sigma * coarse / 2);
        blur(share, sigma * coarse / 2);
        for (int y = 0; y < h; ++y)
            for (int x = 0; x < w; ++x)
                if (hit_(x, y) > 0) {
                    const double around =
                        static_cast<double>(z(x, y)) / std::max(static_cast<double>(share(x, y)), 1e-3);
                    hollow(x, y) += static_cast<float>(
                        std::clamp((around - static_cast<double>(depth_(x, y))) * strength, -0.05, 0.28));
                }
    }
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x) {
            if (hit_(x, y) <= 0)
                continue;
            const double t =
                clamp01(toneOf(normal(x, y)) + style.ambient + static_cast<double>(hollow(x, y)));
            tone_(x, y) = static_cast<float>(t);
            const Point at{(x + window_.x + 0.5) / coarse, (y + window_.y + 0.5) / coarse};
            if (style.marking && colours > 1) {
                const double m = clamp01(style.marking(at, static_cast<double>(depth_(x, y))));
                shares[1](x, y) += shares[0](x, y) * static_cast<float>(m);
                shares[0](x, y) *= static_cast<float>(1 - m);
            }
            Colour c{0, 0, 0};
            for (std::size_t k = 0; k < colours; ++k) {
                const Colour p = ramp(style.palettes[k], t * style.washStrength, style.highlight);
                const float s = shares[k](x, y);
                c.r += p.r * s;
                c.g += p.g * s;
                c.b += p.b * s;
            }
            wash(x, y) = c;
        }
    // Beyond the edge the nearest colour, depth and tone go on, so that doubling the map leaves no seam.
    for (int pass = 0; pass < 4; ++pass) {
        const Field before = hit_;
        Field grown = hit_;
        for (int y = 0; y < h; ++y)
            for (int x = 0; x < w; ++x) {
                if (before(x, y) > 0 || depth_(x, y) > -1e8F)
                    continue;
                for (const auto& [dx, dy] :
                     {std::pair{1, 0}, std::pair{-1, 0}, std::pair{0, 1}, std::pair{0, -1}})
                    if (before.holds(x + dx, y + dy) && before(x + dx, y + dy) > 0) {
                        wash(x, y) = wash(x + dx, y + dy);
                        depth_(x, y) = depth_(x + dx, y + dy);
                        tone_(x, y) = tone_(x + dx, y + dy);
                        grown(x, y) = 1;
                        break;
                    }
            }
        hit_ = grown;
    }
    Field inside(w, h);
    for (std::size_t i = 0; i < inside.cells().size(); ++i) {
        inside.cells()[i] = rim.cells()[i] < 0 ? 1.0F : 0.0F;
        if (depth_.cells()[i] < -1e8F)
            depth_.cells()[i] = 0;
    }

    // Up to the plate's resolution.
    const Plate::Window window{window_.x * 2, window_.y * 2, w * 2, h * 2};
    Field edgeDistance = doubled(rim);
    blur(edgeDistance, 1.8);
    const Field z = doubled(depth_), tones = doubled(tone_), solid = doubled(inside);
    Grid<Colour> colour(window.width, window.height);
    for (int y = 0; y < window.height; ++y)
        for (int x = 0; x < window.width; ++x) {
            const int xa = std::clamp((x - 1) / 2, 0, w - 1), ya = std::clamp((y - 1) / 2, 0, h - 1);
            const int xb = std::min(xa + 1, w - 1), yb = std::min(ya + 1, h - 1);
            const double fx = x % 2 == 0 ? 0.75 : 0.25, fy = y % 2 == 0 ? 0.75 : 0.25;
            colour(x, y) = mix(mix(wash(xa, ya), wash(xb, ya), fx), mix(wash(xa, yb), wash(xb, yb), fx), fy);
        }
    Field mask(window.width, window.height), halo(window.width, window.height);
    for (int y = 0; y < window.height; ++y)
        for (int x = 0; x < window.width; ++x) {
            const double d = static_cast<double>(edgeDistance(x, y));
            mask(x, y) = static_cast<float>(smooth(0.35, -0.35, d));
            halo(x, y) = static_cast<float>(smooth(1.3, 0.9, d));
        }
    if (style.shade > 0)
        plate.shade(window, mask, style.shade);
    plate.clearInk(window, halo);
    plate.layWash(window, colour, mask);

    // Lines: the silhouette, one part before another, and the cuts.
    Field ink(window.width, window.height);
    if (style.hatched) {
        ink = cutInk(window, z, tones, solid, style.cuts);
        if (style.crossFrom < 1) {
            PlaneCuts second = style.cuts;
            second.normal = style.crossNormal;
            second.spacing *= 1.15;
            second.from = style.crossFrom;
            second.coverage *= 0.9;
            second.seed = 9;
            const Field more = cutInk(window, z, tones, solid, second);
            for (std::size_t i = 0; i < ink.cells().size(); ++i)
                ink.cells()[i] = std::max(ink.cells()[i], more.cells()[i]);
        }
        for (std::size_t i = 0; i < ink.cells().size(); ++i)
            ink.cells()[i] *= mask.cells()[i];
    }
    Field away(w, h);
    for (std::size_t i = 0; i < away.cells().size(); ++i)
        away.cells()[i] = rim.cells()[i] < 0 ? depth_.cells()[i] : -60.0F;
    Field reliefMap = doubled(away);
    blur(reliefMap, 0.8);
    const Field nearest = dilated(reliefMap, std::max(1, static_cast<int>(0.42 * Plate::scale)));
    Field overlap(window.width, window.height);
    for (std::size_t i = 0; i < overlap.cells().size(); ++i)
        if (edgeDistance.cells()[i] < 0)
            overlap.cells()[i] =
                static_cast<float>(smooth(style.edge, style.edge * 2.2,
                                          static_cast<double>(nearest.cells()[i] - reliefMap.cells()[i])));
    blur(overlap, 1.5);
    Field slope = edgeDistance;
    blur(slope, 2);
    for (int y = 0; y < window.height; ++y)
        for (int x = 0; x < window.width; ++x) {
            const double d = static_cast<double>(edgeDistance(x, y));
            double line = 0;
            if (d > -0.9 && d < 2) {
                const double gx = static_cast<double>(slopeX(slope, x, y)),
                             gy = static_cast<double>(slopeY(slope, x, y));
                const double f = dot(unit(Point{gx, gy}), shadeSide);
                const double width = style.contour * (0.45 + 0.55 * smooth(-0.6, 0.9, f));
                line = smooth(width / 2 + 0.14, width / 2 - 0.14, std::fabs(d - 0.05));
            }
            line = std::max(line, 0.95 * smooth(0.30, 0.70, static_cast<double>(overlap(x, y))));
            ink(x, y) = std::max(ink(x, y), static_cast<float>(line));
        }
    plate.layInk(window, ink);
    hit_ = inside;
}

std::optional<double> Body::toneAt(Point p) const {
    const int x = static_cast<int>(std::floor(p.x * coarse)) - window_.x,
              y = static_cast<int>(std::floor(p.y * coarse)) - window_.y;
    if (!hit_.holds(x, y) || hit_(x, y) < 0.5F)
        return std::nullopt;
    return static_cast<double>(tone_(x, y));
}

double Body::depthAt(Point p) const {
    const int x = static_cast<int>(std::floor(p.x * coarse)) - window_.x,
              y = static_cast<int>(std::floor(p.y * coarse)) - window_.y;
    return hit_.holds(x, y) ? static_cast<double>(depth_(x, y)) : 0;
}

Point Body::coatAt(Point p) const {
    Point sum;
    // The coat flows: the direction is the mean over a few units around.
    for (const double dx : {-2.5, 0.0, 2.5})
        for (const double dy : {-2.5, 0.0, 2.5}) {
            const int x = static_cast<int>(std::floor((p.x + dx) * coarse)) - window_.x;
            const int y = static_cast<int>(std::floor((p.y + dy) * coarse)) - window_.y;
            if (coat_.holds(x, y))
                sum = sum + coat_(x, y);
        }
    return unit(sum);
}

void Body::fur(Plate& plate, const Fur& fur) const {
    if (window_.width == 0)
        return;
    const double left = static_cast<double>(window_.x) / coarse,
                 top = static_cast<double>(window_.y) / coarse;
    const double right = left + static_cast<double>(window_.width) / coarse;
    const double bottom = top + static_cast<double>(window_.height) / coarse;
    for (const bool crossing : {false, true}) {
        if (crossing && fur.crossFrom >= 1)
            break;
        const double spacing = fur.spacing * (crossing ? 1.15 : 1.0),
                     from = crossing ? fur.crossFrom : fur.from;
        const auto rows = static_cast<int>((bottom - top) / spacing),
                   columns = static_cast<int>((right - left) / spacing);
        for (int r = 0; r <= rows; ++r)
            for (int c = 0; c <= columns; ++c) {
                Point p{left + (c + plate.random.uniform(-0.5, 0.5)) * spacing,
                        top + (r + plate.random.uniform(-0.5, 0.5)) * spacing};
                const double noise = plate.random.around(0.05), turn = plate.random.normal(fur.spread);
                const double vary = plate.random.uniform(0.65, 1.35), weight = plate.random.uniform(0.8, 1.2);
                const std::optional<double> tone = toneAt(p);
                if (!tone || *tone < from + noise || (fur.where && !fur.where(p)))
                    continue;
                const double size = fur.length * vary * (0.6 + 0.6 * *tone);
                const int steps = std::max(4, static_cast<int>(size / 1.3));
                const double share = std::clamp((*tone - from) / (1 - from), 0.05, 1.0);
                Path hair;
                double z = depthAt(p);
                for (int k = 0; k < steps; ++k) {
                    if (!toneAt(p) || std::fabs(depthAt(p) - z) > 4)
                        break;
                    z = depthAt(p);
                    hair.push_back(p);
                    const double a =
                        angleOf(coatAt(p)) + turn + (crossing ? 68 : 0) + fur.curl * (k + 0.5) / steps;
                    p = polar(p, a, size / steps);
                }
                if (hair.size() >= 3)
                    plate.stroke(hair,
                                 {.width = fur.width * share * weight * 1.25, .fade = 0.85, .wobble = 0});
            }
    }
}

void Body::plumage(Plate& plate, const Plumage& f) const {
    if (window_.width == 0)
        return;
    const double left = static_cast<double>(window_.x) / coarse,
                 top = static_cast<double>(window_.y) / coarse;
    const double right = left + static_cast<double>(window_.width) / coarse;
    const double bottom = top + static_cast<double>(window_.height) / coarse;
    int row = 0;
    for (double gy = top; gy < bottom; gy += f.spacing * 0.62, ++row)
        for (double gx = left; gx < right; gx += f.spacing) {
            const Point p{gx + (row % 2) * f.spacing / 2 + plate.random.around(0.7),
                          gy + plate.random.around(0.7)};
            const std::optional<double> tone = toneAt(p);
            if (!tone || (f.where && !f.where(p)))
                continue;
            const int x = static_cast<int>(std::floor(p.x * coarse)) - window_.x,
                      y = static_cast<int>(std::floor(p.y * coarse)) - window_.y;
            const double facing = static_cast<double>(facing_(x, y));
            if (facing < 0.35)
                continue;
            const Point v = coatAt(p), n = rightOf(v);
            const double s = f.size * (f.sizeAt ? f.sizeAt(p) : 1) * (0.5 + 0.5 * facing);
            plate.stroke(spline({p - n * (s * 0.52) - v * (s * 0.15), p - n * (s * 0.36) + v * (s * 0.28),
                                 p + v * (s * 0.45), p + n * (s * 0.36) + v * (s * 0.28),
                                 p + n * (s * 0.52) - v * (s * 0.15)},
                                5),
                         {.width = f.width * (0.55 + *tone), .swell = 0.4, .fade = 0.4, .wobble = 0});
            const int barbs = std::min(3, 1 + static_cast<int>(*tone * 4));
            for (int k = 0; k < barbs; ++k) {
                const double b = (k - 1) * 0.3;
                plate.stroke(
                    {p + n * (s * b) - v * (s * 0.15), p + n * (s * b * 0.9) + v * (s * 0.25)},
                    {.width = f.width * (0.4 + 0.6 * *tone), .swell = 0.5, .fade = 0.2, .wobble = 0});
            }
        }
}

} // namespace tambrelle::engraver
