#include "plates/engraver/carpentry/Wood.h"

namespace tambrelle::engraver {

namespace {

constexpr double grain = 0.12;

TubeForm timber(const Palette& palette) {
    TubeForm form;
    form.palette = palette;
    form.lines = Lines::along;
    form.spacing = 1.9;
    form.tone = 0.04;
    form.contour = 0.85;
    return form;
}

} // namespace

Path pole(Plate& plate, const Path& spine, const Profile& radius, const Palette& palette) {
    return tube(plate, spine, radius, timber(palette));
}

Path sawnPole(Plate& plate, const Path& spine, const Profile& radius, const Palette& palette) {
    TubeForm form = timber(palette);
    form.cutEnd = true;
    return tube(plate, spine, radius, form);
}

void plank(Plate& plate, const Path& outline, double tone, const Palette& palette) {
    face(plate, outline, {.tone = tone, .palette = palette, .grain = grain, .shade = 0.25});
}

void bar(Plate& plate, Point from, Point to, double breadth, double tone, const Palette& palette) {
    const Point side = rightOf(unit(to - from)) * (breadth / 2);
    plank(plate, {from + side, to + side, to - side, from - side}, tone, palette);
}

void block(Plate& plate, const Axes& axes, Vector3 near, Vector3 far, const BlockForm& form) {
    const Vector3 a = near, b = far;
    const bool rightSeen = axes.away.x > 0;
    const auto corner = [&](bool x, bool y, bool z) {
        return axes.at({x ? b.x : a.x, y ? b.y : a.y, z ? b.z : a.z});
    };
    plate.knockOut(hull({corner(false, false, false), corner(true, false, false), corner(true, true, false),
                         corner(false, true, false), corner(false, false, true), corner(true, false, true),
                         corner(true, true, true), corner(false, true, true)}),
                   {.shade = form.shade});
    const auto side = [&](const Path& outline, double tone) {
        const Point u = outline[1] - outline[0], v = outline[2] - outline[1];
        face(plate, outline,
             {.tone = maths::clamp01(tone + form.tone),
              .palette = form.palette,
              .lines = angleOf(length(u) > length(v) ? u : v),
              .contour = form.contour,
              .grain = form.grain,
              .halo = 0});
    };
    const bool s = rightSeen;
    side({corner(s, false, false), corner(s, true, false), corner(s, true, true), corner(s, false, true)},
         s ? 0.58 : 0.22);
    side({corner(false, false, false), corner(true, false, false), corner(true, false, true),
          corner(false, false, true)},
         s ? 0.32 : 0.44);
    side({corner(false, false, true), corner(true, false, true), corner(true, true, true),
          corner(false, true, true)},
         0.14);
}

void ladder(Plate& plate, Point footLeft, Point headLeft, Point footRight, Point headRight,
            const LadderForm& form) {
    for (std::size_t k = 0; k < form.rungs; ++k) {
        const double t = (static_cast<double>(k) + 0.7) / (static_cast<double>(form.rungs) + 0.4);
        const Point a = lerp(footLeft, headLeft, t), b = lerp(footRight, headRight, t);
        const Point out = unit(b - a) * (form.rail * 0.6);
        pole(plate, {a - out, b + out}, form.rung);
    }
    for (const auto& [foot, head] : {std::pair{footLeft, headLeft}, std::pair{footRight, headRight}}) {
        const Path rail = pole(plate, {foot, lerp(foot, head, 0.5), head}, form.rail);
        for (std::size_t k = 0; k < form.rungs; ++k) { // the rungs' ends come through
            const double t = (static_cast<double>(k) + 0.7) / (static_cast<double>(form.rungs) + 0.4);
            plate.contour(ellipse(along(rail, t), form.rung * 0.55, form.rung * 0.7, 16), 0.6);
        }
    }
}

} // namespace tambrelle::engraver
