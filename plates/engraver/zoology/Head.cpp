#include "plates/engraver/zoology/Head.h"

namespace tambrelle::engraver {

namespace {

// Root, widest place and tip of an ear on the plate.
Path earSpine(const HeadPose& pose, const Ear& ear) {
    const Point root = pose.at(ear.at.x, ear.at.y);
    const Point middle = polar(root, ear.degrees - ear.bend * 0.5, ear.length * 0.5);
    return {root, middle, polar(middle, ear.degrees + ear.bend * 0.5, ear.length * 0.5)};
}

HeadBuild equine() {
    HeadBuild h;
    h.parts = {{{{0, 0, 0, 0.200},
                 {0.29, 0.0, 0, 0.200},
                 {0.65, 0.0, 0, 0.150},
                 {0.90, 0.0, 0, 0.132},
                 {1, 0.01, 0, 0.115}}},
               {{{0.21, 0.10, 0.10, 0.175}}},
               {{{1.05, 0.05, 0, 0.085}, {0.97, 0.16, 0, 0.078}}, 3}};
    h.eyeAt = {0.24, -0.065};
    h.eye.radius = 0.050;
    h.lines = {{{{1.00, -0.05}, {0.95, -0.06}, {0.925, -0.01}, {0.97, 0.03}, {1.0, 0.0}}, 1.3, false},
               {{{1.115, 0.05}, {1.04, 0.10}, {0.90, 0.155}}, 0.9},
               {{{0.135, 0.22}, {0.29, 0.29}, {0.45, 0.22}}, 0.7},
               {{{0.42, -0.08}, {0.58, -0.06}, {0.75, -0.04}}, 0.5},
               {{{0.99, 0.17}, {0.96, 0.235}, {0.90, 0.24}}, 0.6}};
    return h;
}

HeadBuild bovine() {
    HeadBuild h;
    h.parts = {
        {{{0.02, 0.02, 0, 0.25}, {0.28, 0.0, 0, 0.245}, {0.62, 0.02, 0, 0.185}, {0.82, 0.03, 0, 0.165}}},
        {{{0.26, 0.12, 0.10, 0.18}, {0.46, 0.12, 0.06, 0.14}}},
        {{{0.93, 0.0, 0, 0.150}, {0.97, 0.04, 0, 0.135}}, 4, 2},
        {{{0.90, 0.17, 0, 0.095}, {0.82, 0.19, 0, 0.085}}, 3}};
    h.eyeAt = {0.27, -0.055};
    h.eye.radius = 0.050;
    h.lines = {{{{1.02, -0.07}, {0.965, -0.085}, {0.94, -0.035}, {0.985, -0.005}}, 1.5, false},
               {{{1.06, 0.12}, {0.96, 0.155}, {0.80, 0.13}}, 0.95},
               {{{0.86, -0.10}, {0.84, 0.0}, {0.87, 0.10}}, 0.5},
               {{{0.20, 0.28}, {0.36, 0.31}, {0.52, 0.24}}, 0.6},
               {{{0.44, -0.10}, {0.58, -0.08}, {0.70, -0.05}}, 0.45}};
    return h;
}

HeadBuild caprine() {
    HeadBuild h;
    h.parts = {{{{0, 0, 0, 0.25},
                 {0.26, 0.0, 0, 0.235},
                 {0.62, 0.015, 0, 0.165},
                 {0.86, 0.02, 0, 0.14},
                 {0.95, 0.02, 0, 0.125}}},
               {{{0.26, 0.13, 0.08, 0.16}, {0.5, 0.12, 0.03, 0.12}}},
               {{{0.96, 0.10, 0, 0.085}, {0.86, 0.15, 0, 0.075}}, 3}};
    h.eyeAt = {0.27, -0.05};
    h.eye = {.radius = 0.058, .iris = Colour{0xC9A94A}, .pupil = EyeForm::Pupil::bar, .pupilSize = 0.62};
    h.lines = {{{{1.03, -0.05}, {0.97, -0.075}, {0.935, -0.02}, {0.97, 0.0}}, 1.2, false},
               {{{1.06, 0.065}, {0.97, 0.095}, {0.80, 0.095}}, 0.85},
               {{{0.20, 0.26}, {0.36, 0.28}, {0.5, 0.22}}, 0.55}};
    return h;
}

HeadBuild ovine() {
    HeadBuild h;
    h.parts = {{{{0, 0, 0, 0.25},
                 {0.24, -0.01, 0, 0.24},
                 {0.52, -0.03, 0, 0.20},
                 {0.76, 0.0, 0, 0.17},
                 {0.93, 0.03, 0, 0.135}}},
               {{{0.26, 0.14, 0.08, 0.16}, {0.5, 0.13, 0.03, 0.13}}},
               {{{0.96, 0.11, 0, 0.09}, {0.85, 0.16, 0, 0.08}}, 3}};
    h.eyeAt = {0.27, -0.05};
    h.eye = {.radius = 0.056, .iris = Colour{0xB98E44}, .pupil = EyeForm::Pupil::bar, .pupilSize = 0.64};
    h.lines = {{{{1.04, -0.03}, {0.97, -0.06}, {0.93, 0.0}, {0.98, 0.025}}, 1.2, false},
               {{{1.02, 0.02}, {1.05, 0.07}}, 0.8},
               {{{1.065, 0.075}, {0.97, 0.105}, {0.80, 0.115}}, 0.85},
               {{{0.20, 0.27}, {0.36, 0.29}, {0.5, 0.23}}, 0.5}};
    return h;
}

HeadBuild cervine() {
    HeadBuild h;
    h.parts = {{{{0, 0, 0, 0.225}, {0.26, 0.0, 0, 0.215}, {0.58, 0.03, 0, 0.145}, {0.84, 0.05, 0, 0.11}}},
               {{{0.26, 0.12, 0.08, 0.14}}},
               {{{0.93, 0.04, 0, 0.095}, {0.985, 0.04, 0, 0.075}}, 3},
               {{{0.93, 0.12, 0, 0.06}, {0.80, 0.15, 0, 0.06}}, 3}};
    h.eyeAt = {0.29, -0.04};
    h.nose = {{1.0, -0.05}, {1.07, -0.01}, {1.075, 0.06}, {1.03, 0.085}, {0.985, 0.06}, {0.965, 0.0}};
    h.eye.radius = 0.070;
    h.lines = {{{{1.05, 0.0}, {1.0, -0.02}, {0.975, 0.025}, {1.01, 0.04}}, 1.0, false},
               {{{1.04, 0.10}, {0.95, 0.115}, {0.78, 0.10}}, 0.8},
               {{{0.38, -0.02}, {0.45, 0.0}, {0.52, 0.03}}, 0.5}};
    return h;
}

HeadBuild porcine() {
    HeadBuild h;
    h.parts = {{{{0, 0.0, 0, 0.33},
                 {0.26, 0.06, 0, 0.28},
                 {0.52, 0.10, 0, 0.20},
                 {0.78, 0.10, 0, 0.155},
                 {0.92, 0.09, 0, 0.145}}},
               {{{0.24, 0.24, 0.12, 0.22}, {0.5, 0.26, 0.06, 0.14}}, 8},
               {{{0.985, 0.085, 0, 0.185}, {1.01, 0.085, 0, 0.175}}, 2, 2},
               {{{0.84, 0.23, 0, 0.085}, {0.7, 0.25, 0, 0.09}}, 4}};
    h.eyeAt = {0.50, -0.045};
    h.eye.radius = 0.036;
    h.lines = {{{{0.98, 0.235}, {0.84, 0.245}, {0.62, 0.19}, {0.54, 0.155}}, 0.95},
               {{{0.80, -0.05}, {0.79, 0.06}, {0.83, 0.17}}, 0.5},
               {{{0.70, -0.06}, {0.69, 0.03}, {0.72, 0.12}}, 0.45},
               {{{0.30, 0.10}, {0.42, 0.16}, {0.48, 0.26}}, 0.5}};
    return h;
}

HeadBuild canine() {
    HeadBuild h;
    h.parts = {{{{0.02, 0.02, 0, 0.27}, {0.26, 0.0, 0, 0.26}, {0.42, 0.05, 0, 0.20}}},
               {{{0.40, 0.08, 0, 0.17}, {0.66, 0.08, 0, 0.145}, {0.88, 0.07, 0, 0.13}}, 6},
               {{{0.90, 0.16, 0, 0.09}, {0.74, 0.22, 0, 0.105}, {0.52, 0.23, 0, 0.11}}, 4},
               {{{0.20, 0.20, 0.10, 0.16}}, 8},
               {{{0.98, 0.01, 0, 0.06}}, 3}};
    h.nose = {{0.95, -0.075}, {1.02, -0.07}, {1.06, -0.01}, {1.045, 0.06}, {0.99, 0.075}, {0.945, 0.01}};
    h.eyeAt = {0.37, -0.055};
    h.eye = {.radius = 0.054, .iris = Colour{0x6B3F1E}, .pupilSize = 0.62};
    h.lines = {{{{0.99, 0.08}, {0.985, 0.14}, {0.90, 0.185}, {0.72, 0.19}, {0.58, 0.20}, {0.50, 0.25}}, 1.0},
               {{{1.03, 0.02}, {1.01, 0.005}, {1.0, 0.03}}, 0.8, false},
               {{{0.46, 0.0}, {0.50, 0.04}, {0.58, 0.08}}, 0.5}};
    return h;
}

} // namespace

const HeadBuild& equineHead() {
    static const HeadBuild build = equine();
    return build;
}
const HeadBuild& bovineHead() {
    static const HeadBuild build = bovine();
    return build;
}
const HeadBuild& caprineHead() {
    static const HeadBuild build = caprine();
    return build;
}
const HeadBuild& ovineHead() {
    static const HeadBuild build = ovine();
    return build;
}
const HeadBuild& cervineHead() {
    static const HeadBuild build = cervine();
    return build;
}
const HeadBuild& porcineHead() {
    static const HeadBuild build = porcine();
    return build;
}
const HeadBuild& canineHead() {
    static const HeadBuild build = canine();
    return build;
}

void addHead(Body& body, const HeadPose& pose, const HeadBuild& build) {
    for (const HeadBuild::Part& part : build.parts)
        body.chain(pose.joints(part.joints), {.blend = part.blend, .palette = part.palette});
}

void addEar(Body& body, const HeadPose& pose, const Ear& ear) {
    const Path s = earSpine(pose, ear);
    const double z = ear.z * pose.length, w = ear.width;
    body.chain({{s[0].x, s[0].y, z, w * 0.62},
                {s[1].x, s[1].y, z + 1, w},
                {lerp(s[1], s[2], 0.5).x, lerp(s[1], s[2], 0.5).y, z + 1, w * 0.72},
                {s[2].x, s[2].y, z + 1, w * 0.16}},
               {.blend = 2, .palette = ear.palette, .depth = 0.6});
}

void drawFace(Plate& plate, const HeadPose& pose, const HeadBuild& build) {
    for (const FaceLine& line : build.lines)
        plate.stroke(spline(pose.path(line.path), 8), {.width = line.width,
                                                       .swell = line.fading ? 0.15 : 0.2,
                                                       .fade = line.fading ? 0.7 : 0.25,
                                                       .wobble = 0.05});
    if (!build.nose.empty()) {
        const Path nose = closedSpline(pose.path(build.nose), 6);
        plate.knockOut(nose, {.halo = 0.2, .shade = 0});
        plate.flat(nose, palettes::black, 0.72);
        plate.contour(nose, {.width = 0.9, .lit = 0.8});
        const Point shine = pose.at(build.nose[0].x - 0.02, build.nose[0].y + 0.012);
        plate.flat(ellipse(shine, pose.length * 0.022, pose.length * 0.014, 12), white, 0.75);
    }
    EyeForm form = build.eye;
    form.radius *= pose.length;
    form.degrees = pose.degrees + (pose.looksRight ? -build.eyeTurn : build.eyeTurn);
    eye(plate, pose.at(build.eyeAt.x, build.eyeAt.y), form);
}

void drawEar(Plate& plate, const HeadPose& pose, const Ear& ear, Colour hollow) {
    if (!ear.open)
        return;
    const Path s = spline(earSpine(pose, ear), 10), n = normals(s);
    Path right, left;
    for (std::size_t i = s.size() / 8; i < s.size() - 2; ++i) {
        const double q = static_cast<double>(i) / static_cast<double>(s.size() - 1);
        const double w = ear.width * 0.62 * maths::sin(maths::pi * maths::pow(q, 0.8));
        right.push_back(s[i] + n[i] * w);
        left.push_back(s[i] - n[i] * (w * 0.75));
    }
    plate.flat(band(right, left), hollow, 0.45);
    plate.stroke(left, {.width = 0.6, .swell = 0.2, .fade = 0.6});
    plate.stroke(right, {.width = 0.45, .swell = 0.3, .fade = 0.7});
    plate.stroke(Path(s.begin() + 3, s.end() - 5), {.width = 0.5, .swell = 0.2, .fade = 0.7});
}

} // namespace tambrelle::engraver
