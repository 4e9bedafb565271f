#include "plates/engraver/minerals/Shell.h"

namespace tambrelle::engraver {

void cockle(Plate& plate, Point centre, double radius, double degrees, const Palette& palette) {
    constexpr int ribs = 9;
    constexpr double spread = 62;
    const Point beak = polar(centre, degrees + 180, radius * 0.85);
    Path outline{polar(beak, degrees + 180, radius * 0.1)};
    for (int k = 0; k <= ribs * 8; ++k) {
        const double f = 2.0 * k / (ribs * 8) - 1; // scalloped rim
        const double reach =
            radius * (1.75 - 0.42 * f * f + 0.05 * std::fabs(maths::sin(maths::pi * k / 8.0)));
        outline.push_back(polar(beak, degrees + spread * f, reach));
    }
    ReliefForm r;
    r.palette = palette;
    r.soften = 0.8;
    r.crossFrom = 0.75;
    r.height = [&](Point at, double depth) {
        const Point q = rotate(at - beak, -degrees);
        const double f = maths::degrees(maths::atan2(q.y, q.x)) / spread, d = length(q) / (1.75 * radius);
        const double dome = radius * 0.62 * std::sqrt(maths::clamp01(depth / (radius * 0.8)));
        const double rib = std::fabs(maths::sin(maths::pi * (f + 1) / 2 * ribs));
        return dome + radius * 0.11 * rib * maths::smooth(0.08, 0.6, d) + 0.35 * maths::sin(d * 40);
    };
    relief(plate, outline, r);
}

void ammonite(Plate& plate, Point centre, double radius, const Palette& palette) {
    // A logarithmic spiral: each whorl is `growth` times as broad as the one within it.
    constexpr double growth = 2.1;
    const double perTurn = maths::log(growth);
    const auto rim = [&](double turn) { return radius * maths::exp(perTurn * (turn - 1)); };
    Path outline;
    constexpr double mouthTurn = 0.06; // the mouth gapes at the lower right
    for (int k = 0; k <= 120; ++k) {
        const double turn = k / 120.0;
        outline.push_back(polar(centre, 360 * turn + 40, rim(turn + mouthTurn)));
    }
    outline.push_back(polar(centre, 400, rim(mouthTurn) * 1.04));
    ReliefForm r;
    r.palette = palette;
    r.soften = 0.9;
    r.shade = 0.5;
    r.crossFrom = 0.7;
    r.creases = true;
    r.height = [&](Point at, double) {
        const Point q = at - centre;
        const double d = std::max(length(q), 0.5);
        double angle = (angleOf(q) - 40) / 360;
        angle -= std::floor(angle);
        // The whorl in which the place lies: the first whose outer rim is beyond it.
        double outer = rim(angle + mouthTurn);
        int whorl = 0;
        while (outer / growth > d && whorl < 6) {
            outer /= growth;
            ++whorl;
        }
        const double inner = outer / growth, across = (d - inner) / (outer - inner);
        const double tube = std::sqrt(std::max(0.0, 1 - (2 * across - 1) * (2 * across - 1)));
        const double turns = angle - whorl;
        const double rib = maths::sin(2 * maths::pi * (turns * 34 + 0.55 * across));
        return (outer - inner) * (0.50 * tube + 0.075 * rib * tube);
    };
    relief(plate, outline, r);
}

} // namespace tambrelle::engraver
