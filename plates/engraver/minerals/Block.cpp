#include "plates/engraver/minerals/Block.h"

#include "plates/engraver/Face.h"
#include "plates/engraver/Noise.h"
#include "plates/engraver/Profile.h"

namespace tambrelle::engraver {

Point Box::at(double l, double r, double up) const {
    const double shrink = taper * up;
    return front + left * maths::lerp(l, 0.5, shrink) + right * maths::lerp(r, 0.5, shrink) +
           Point{0, -height * up};
}
Path Box::leftFace() const {
    return {at(1, 0, 1), at(0, 0, 1), at(0, 0, 0), at(1, 0, 0)};
}
Path Box::rightFace() const {
    return {at(0, 0, 1), at(0, 1, 1), at(0, 1, 0), at(0, 0, 0)};
}
Path Box::top() const {
    return {at(1, 0, 1), at(0, 0, 1), at(0, 1, 1), at(1, 1, 1)};
}

void cutBlock(Plate& plate, const Box& box, const CutBlockForm& form) {
    plate.knockOut(hull(joined(joined(box.leftFace(), box.rightFace()), box.top())), {.shade = form.shade});
    FaceForm f{.palette = form.palette,
               .spacing = form.spacing,
               .contour = form.contour,
               .gradient = 0.08,
               .grain = form.grain};
    f.tone = form.leftTone;
    face(plate, box.leftFace(), f);
    f.tone = form.rightTone;
    f.crossed = form.rightTone > 0.62;
    face(plate, box.rightFace(), f);
    f.tone = form.topTone;
    f.crossed = false;
    f.gradient = 0.12;
    face(plate, box.top(), f);
}

namespace {

// Which share of the height a place on a face stands at, by the face's foot edge.
double levelOn(Point p, Point foot, Point along, double height) {
    const double t = std::fabs(along.x) > 1e-9 ? (p.x - foot.x) / along.x : 0;
    return (foot.y + along.y * t - p.y) / height;
}

const Bed& bedAt(const std::vector<Bed>& beds, double level) {
    for (const Bed& bed : beds)
        if (level < bed.to)
            return bed;
    return beds.back();
}

// Height of a face near its edge: rounded within `breadth` units or so, level further in.
double rim(double depth, double breadth) {
    static const Profile rounded(+[](double q) { return maths::tanh(4 * q); });
    return breadth * rounded(depth / (4 * breadth));
}

// A slow function of the place, worked out at every `step` units and drawn straight between: relief asks for
// it at every pixel.
class Sampled {
public:
    Sampled(const Bounds& bounds, double step, const std::function<double(Point)>& function)
        : origin_{bounds.left, bounds.top},
          step_(step),
          values_(static_cast<int>((bounds.right - bounds.left) / step) + 2,
                  static_cast<int>((bounds.bottom - bounds.top) / step) + 2) {
        for (int y = 0; y < values_.height(); ++y)
            for (int x = 0; x < values_.width(); ++x)
                values_(x, y) = static_cast<float>(function(origin_ + Point{x * step, y * step}));
    }
    double operator()(Point p) const {
        const Point at = (p - origin_) * (1 / step_);
        const int x = std::clamp(static_cast<int>(at.x), 0, values_.width() - 2),
                  y = std::clamp(static_cast<int>(at.y), 0, values_.height() - 2);
        const double right = maths::clamp01(at.x - x), down = maths::clamp01(at.y - y);
        const auto value = [&](int i, int j) { return static_cast<double>(values_(x + i, y + j)); };
        return maths::lerp(maths::lerp(value(0, 0), value(1, 0), right),
                           maths::lerp(value(0, 1), value(1, 1), right), down);
    }

private:
    Point origin_;
    double step_;
    Field values_;
};

Bounds around(const Box& box, double margin) {
    Bounds b;
    for (const Path& face : {box.leftFace(), box.rightFace(), box.top()})
        for (const Point p : face) {
            b.add(p - Point{margin, margin});
            b.add(p + Point{margin, margin});
        }
    return b;
}

} // namespace

RoughBlock roughBlock(Plate& plate, const Box& box, const RoughBlockForm& form) {
    const auto edge = [&](double l0, double r0, double u0, double l1, double r1, double u1, std::uint64_t k) {
        return brokenEdge(box.at(l0, r0, u0), box.at(l1, r1, u1), form.ragged, form.seed * 31 + k);
    };
    const Path near = edge(0, 0, 0, 0, 0, 1, 1);
    const Path leftFoot = edge(1, 0, 0, 0, 0, 0, 2), leftSide = edge(1, 0, 0, 1, 0, 1, 3);
    const Path leftTop = edge(1, 0, 1, 0, 0, 1, 4);
    const Path rightFoot = edge(0, 0, 0, 0, 1, 0, 5), rightSide = edge(0, 1, 0, 0, 1, 1, 6);
    const Path rightTop = edge(0, 0, 1, 0, 1, 1, 7);
    const Path farLeft = edge(1, 0, 1, 1, 1, 1, 8), farRight = edge(0, 1, 1, 1, 1, 1, 9);

    const Noise noise(form.seed, 4, 0.6), waves(form.seed + 5, 2, 0.5);
    ReliefForm r;
    r.soften = 1.2;
    r.spacing = form.spacing;
    r.coverage = form.coverage;
    r.crossFrom = form.crossFrom;
    r.halo = 0.3;
    r.contour = 0.85;
    r.occlusion = false; // the grain is too shallow for hollows to show
    const Bounds room = around(box, 4 + 2 * form.ragged);
    const Sampled grain(room, 0.5, [&](Point p) {
        return form.rough * noise(p.x / (form.grain * form.flat), p.y / form.grain);
    });
    const Sampled wave(room, 2, [&](Point p) { return form.wavy * waves(p.x / 26, p.y / 200); });
    // Far from every limit between beds the limits' waves cannot matter.
    const double reach = (3 * form.wavy + 4) / box.height;
    const auto level = [&](Point p, Point along) {
        const double straight = levelOn(p, box.front, along, box.height);
        for (std::size_t k = 0; k + 1 < form.beds.size(); ++k)
            if (std::fabs(straight - form.beds[k].to) < reach)
                return straight + wave(p) / box.height;
        return straight;
    };
    const auto draw = [&](const Path& outline, Point along, double tone) {
        r.tone = tone;
        r.height = [&, along](Point p, double depth) {
            const double at = level(p, along);
            const Bed& bed = bedAt(form.beds, at);
            double seam = 0; // a joint between two beds is a shallow furrow
            for (std::size_t k = 0; k + 1 < form.beds.size(); ++k) {
                const double away = (at - form.beds[k].to) * box.height;
                if (std::fabs(away) < 4)
                    seam += 1.6 * maths::exp(-away * away / 1.6);
            }
            return rim(depth, 6) + grain(p) + bed.proud - seam;
        };
        r.tint = [&, along](Point p, double, double t, Colour) {
            return ramp(bedAt(form.beds, level(p, along)).palette, t * 0.82);
        };
        return relief(plate, outline, r);
    };
    RoughBlock made;
    r.shade = form.shade;
    made.left = draw(joined(joined(reversed(leftFoot), leftSide), joined(leftTop, reversed(near))), box.left,
                     form.leftTone);
    made.right = draw(joined(joined(near, rightTop), joined(reversed(rightSide), reversed(rightFoot))),
                      box.right, form.rightTone);
    r.shade = 0;
    r.tone = form.topTone;
    r.height = [&](Point p, double depth) { return rim(depth, 4) + 0.7 * grain(p); };
    r.tint = {};
    r.palette = form.beds.back().palette;
    made.top = relief(plate, joined(joined(leftTop, rightTop), joined(farRight, reversed(farLeft))), r);
    return made;
}

} // namespace tambrelle::engraver
