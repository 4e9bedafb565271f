#include "plates/engraver/zoology/Quadruped.h"

#include "plates/engraver/Noise.h"

namespace tambrelle::engraver {

namespace {

// A station of a leg: t down from its root to the ground, dx behind the root, radius; a horse's, in units.
struct Station {
    double t;
    double dx;
    double radius;
};
constexpr Station foreStations[] = {
    {0, 0, 15},      {0.167, 3, 10.5}, {0.354, 1.5, 7.2},  {0.479, 0, 5.9},    {0.54, 0, 5.5},
    {0.615, 0, 4.2}, {0.76, 0.5, 3.7}, {0.8125, 0.5, 4.7}, {0.885, -3.5, 3.7}, {0.935, -5.5, 4.4}};
constexpr Station hindStations[] = {{0, 0, 21},       {0.17, -1, 18.5}, {0.305, -7, 14},   {0.424, 4, 9.6},
                                    {0.542, 17, 6.4}, {0.593, 18, 5.8}, {0.67, 15.5, 4.7}, {0.805, 13.5, 4.0},
                                    {0.856, 13, 4.9}, {0.915, 8, 3.9},  {0.945, 6, 4.5}};
constexpr double kneeAt = 0.5, hockAt = 0.56;

} // namespace

std::vector<Quadruped::Limb> Quadruped::limbs() const {
    std::vector<Limb> out;
    for (const bool nearSide : {false, true})
        for (const bool fore : {true, false}) {
            const Stride& stride = fore ? (nearSide ? foreNear : foreFar) : (nearSide ? hindNear : hindFar);
            const Point root = fore ? elbow : hip;
            const double reach = ground - root.y, joint = fore ? kneeAt : hockAt;
            const double stature = reach / (fore ? 96.0 : 118.0);
            Limb limb;
            limb.z = nearSide ? spread : -spread;
            const auto place = [&](const Station& s) {
                const double swing =
                    s.t < joint ? stride.knee * s.t / joint
                                : maths::lerp(stride.knee, stride.foot, (s.t - joint) / (0.94 - joint));
                const double thick = s.t < 0.4 ? muscle : bone;
                const double bend = fore ? stature : stature * angulation;
                const double depth = s.t < 0.1 ? limb.z * 0.8 : limb.z;
                const bool paw = foot == Foot::paw && s.t > 0.87;
                return Joint{root.x + s.dx * bend + swing, root.y + s.t * reach - (paw ? 1.0 : 0.0), depth,
                             s.radius * thick * (nearSide || s.t >= 0.4 ? 1.0 : 0.88)};
            };
            const auto add = [&](const Station& s) {
                const Joint here = place(s);
                // The lower leg begins at the last joint of the upper.
                if (s.t < joint) {
                    limb.upper.push_back(here);
                    limb.lower.assign(1, here);
                } else {
                    limb.lower.push_back(here);
                    limb.footX = here.x;
                }
            };
            if (fore)
                for (const Station& s : foreStations)
                    add(s);
            else
                for (const Station& s : hindStations)
                    add(s);
            out.push_back(limb);
        }
    return out;
}

Body Quadruped::body() const {
    Body b;
    b.chain(trunk, {.blend = 16});
    for (const std::vector<Joint>& s : swellings)
        b.chain(s, {.blend = 12});
    b.chain(neck, {.blend = 12});
    if (shoulder > 0)
        b.chain({{elbow.x + 9, elbow.y - 26, spread * 0.85, shoulder},
                 {elbow.x - 5, elbow.y - 4, spread, shoulder * 0.88}},
                {.blend = 10});
    for (const Limb& limb : limbs()) {
        b.chain(limb.upper, {.blend = 7});
        b.chain(limb.lower, {.blend = 4, .palette = socks});
        if (foot == Foot::paw) {
            const double r = 4.6 * bone;
            b.chain({{limb.footX + 2, ground - r - 0.5, limb.z, r},
                     {limb.footX - 7 * bone, ground - r * 0.95, limb.z, r * 0.92}},
                    {.blend = 4, .palette = socks});
        }
    }
    for (const Ear& ear : ears)
        if (ear.z < 0)
            addEar(b, head, ear);
    addHead(b, head, *headBuild);
    for (const Ear& ear : ears)
        if (ear.z >= 0)
            addEar(b, head, ear);
    return b;
}

void Quadruped::finish(Plate& plate) const {
    for (const Limb& limb : limbs()) {
        const double y = limb.z < 0 ? ground - 1 : ground;
        if (foot == Foot::paw)
            toes(plate, {limb.footX + 1, y - 0.6}, {.length = 12 * bone, .height = 7.5 * bone});
        else
            hoof(plate, {limb.footX - (foot == Foot::cloven ? 0.0 : 0.5), y},
                 {.width = (foot == Foot::cloven ? 5.2 : 5.4) * bone,
                  .height = 9 * bone,
                  .palette = hoofs,
                  .cloven = foot == Foot::cloven});
    }
    for (const Ear& ear : ears)
        if (ear.z >= 0)
            drawEar(plate, head, ear);
    drawFace(plate, head, *headBuild);
}

Quadruped Quadruped::scaled(double k, Point fixed) const {
    Quadruped q = *this;
    const auto move = [&](Point& at) { at = fixed + (at - fixed) * k; };
    const auto grow = [&](std::vector<Joint>& joints) {
        for (Joint& j : joints)
            j = {fixed.x + (j.x - fixed.x) * k, fixed.y + (j.y - fixed.y) * k, j.z * k, j.radius * k};
    };
    grow(q.trunk);
    for (std::vector<Joint>& s : q.swellings)
        grow(s);
    grow(q.neck);
    move(q.head.poll);
    move(q.elbow);
    move(q.hip);
    q.head.length *= k;
    for (Ear& ear : q.ears) {
        ear.length *= k;
        ear.width *= k;
    }
    q.ground = fixed.y + (ground - fixed.y) * k;
    for (double* v : {&q.spread, &q.bone, &q.muscle, &q.shoulder})
        *v *= k;
    for (Stride* s : {&q.foreNear, &q.foreFar, &q.hindNear, &q.hindFar})
        *s = {s->knee * k, s->foot * k};
    return q;
}

void addFleece(Body& body, const std::vector<Joint>& joints, double size, Random& random) {
    for (std::size_t i = 0; i + 1 < joints.size(); ++i) {
        const Joint &a = joints[i], &b = joints[i + 1];
        const double span = length(Point{b.x - a.x, b.y - a.y});
        const int rings = std::max(1, static_cast<int>(span / (size * 1.5)));
        for (int k = 0; k < rings; ++k) {
            const double q = (k + random.uniform(0.2, 0.8)) / rings;
            const double r = maths::lerp(a.radius, b.radius, q);
            const int tufts = std::max(5, static_cast<int>(r * 3.3 / (size * 1.5)));
            for (int j = 0; j < tufts; ++j) {
                // Only the half that faces the viewer, and its edge.
                const double turn = 360.0 * (j + random.uniform(0.1, 0.9)) / tufts;
                const Point out = direction(turn);
                const double inward = random.chance(0.5) ? 1.0 : 0.72;
                body.chain({{maths::lerp(a.x, b.x, q) + out.x * (r - size * 0.25) * inward,
                             maths::lerp(a.y, b.y, q) + out.y * (r - size * 0.25) * inward,
                             maths::lerp(a.z, b.z, q) + r * std::sqrt(1 - inward * inward) * 0.9,
                             size * random.uniform(0.8, 1.2)}},
                           {.blend = size * 0.8});
            }
        }
    }
}

Body::Style coat(std::vector<Palette> palettes) {
    Body::Style s;
    s.palettes = std::move(palettes);
    s.contour = 1.0;
    return s;
}

Body::Style darkCoat(std::vector<Palette> palettes) {
    Body::Style s = coat(std::move(palettes));
    s.highlight = 0.03;
    s.washStrength = 0.78;
    return s;
}

std::function<double(Point, double)> patches(std::uint64_t seed, double share, double size) {
    const Noise noise(seed, 2, 0.4);
    const double level = 1.3 * (0.5 - share);
    return [noise, level, size](Point p, double z) {
        return maths::smooth(level - 0.07, level + 0.07, noise(p.x / size, (p.y + 0.4 * z) / size));
    };
}

} // namespace tambrelle::engraver
