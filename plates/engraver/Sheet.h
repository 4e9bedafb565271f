#pragma once

#include "plates/engraver/Plate.h"
#include "plates/engraver/Profile.h"

namespace tambrelle::engraver {

/// Where a flower or rosette stands in space. Its own axes: z out along the axis, x and y across.
class Frame {
public:
    /// `tilt` degrees: 0 seen from the side, 90 the axis points into the viewer's eye. `degrees`: the axis's
    /// direction on the screen. `roll` turns the flower about its axis.
    Frame(Point centre, double tilt, double degrees = -90, double roll = 0);
    Vector3 operator()(Vector3 p) const {
        return Vector3{centre_.x, centre_.y, 0} + x_ * p.x + y_ * p.y + z_ * p.z;
    }
    Point onPlate(Vector3 p) const {
        const Vector3 q = (*this)(p);
        return {q.x, q.y};
    }

private:
    Point centre_;
    Vector3 x_, y_, z_;
};

/// A petal (or leaf of a head) as a curved sheet about an axis.
struct Petal {
    double length = 30;
    /// Half its breadth.
    double width = 10;
    /// Degrees from the axis at its base and tip: 0 along the axis, 90 spread flat, above 90 reflexed.
    double baseAngle = 30;
    double tipAngle = 60;
    Profile shape = shapes::obovate;
    /// Radius of lateral curvature over the width: 1 a deep channel, 3 nearly flat, 0 flat.
    double cup = 1.2;
    /// Extra degrees at the rim.
    double curl = 0;
    /// Depth of the notch at the tip, as a share of the length.
    double notch = 0;
    /// Waves of the rim: height in units and how many half turns.
    double ruffle = 0;
    double ruffleTurns = 3;
    /// Distance of the base from the axis, and along it.
    double radius = 2;
    double offset = 0;
    /// Where along the length it bends: 1 evenly, below 1 near the base, above near the tip.
    double bending = 1.2;
    /// How much one side lies over the other.
    double overlap = 0.14;
    /// Index into the palettes given to Sheets::engrave().
    int palette = 0;
    /// Tone added at (u from base to tip, v from -1 to 1 across); absent: a darker base.
    std::function<double(double u, double v)> tone = {};
    int rows = 30;
    int columns = 23;
};

/// Sheets in space, drawn together through a depth buffer and hatched from base to rim.
class Sheets {
public:
    /// Adds a net of points; `line(i, j)` counts hatch lines across it, `tone(i, j)` is added to the light's.
    void add(std::size_t rows, std::size_t columns, const std::function<Vector3(double u, double v)>& at,
             const std::function<double(double u, double v)>& line,
             const std::function<double(double u, double v)>& tone, int palette = 0);
    /// Adds a petal at `azimuth` degrees about the frame's axis.
    void petal(const Frame& frame, double azimuth, const Petal& petal, Random& random);
    /// A rod (stamen, style) in the frame: from the axis at `offset`, leaning `lean` degrees towards
    /// `azimuth`.
    struct Rod {
        double azimuth = 0;
        double lean = 10;
        double bend = 0;
        double length = 30;
        double radius = 1;
        double tipRadius = 1;
        double offset = 0;
        int palette = 0;
    };
    void rod(const Frame& frame, const Rod& rod);
    /// A cup, trumpet or bell about the axis with `lobes` at its mouth.
    struct Cup {
        double length = 20;
        double radius = 10;
        /// Radius along the length, as shares of `radius`.
        Profile shape = {0.15, 0.7, 0.9, 0.95, 1.15};
        int lobes = 0;
        double lobeDepth = 0.35;
        /// Fluting of the rim, in units.
        double flute = 0;
        int flutes = 12;
        double offset = 0;
        double tone = 0.12;
        int palette = 0;
    };
    void cup(const Frame& frame, const Cup& cup);

    struct Style {
        /// One for each index used; a second palette fades in from base to tip.
        struct Tint {
            Palette base;
            std::optional<Palette> tip = std::nullopt;
            Tint(const Palette& p) : base(p) {}
            Tint(const Palette& p, const Palette& q) : base(p), tip(q) {}
        };
        std::vector<Tint> palettes = {palettes::rose};
        double spacing = 1.9;
        double hatchFrom = 0.22;
        double coverage = 0.46;
        double widest = 0.9;
        double contour = 0.75;
        /// Difference in depth, in units, that makes an edge within the flower worth a line.
        double edge = 1.2;
        double washStrength = 0.78;
        /// Added to the wash's tone: coloured flowers 0.10, or they read as white; yellow composites 0.34;
        /// white 0.
        double washLift = 0.10;
        double ambient = 0;
        double occlusion = 1;
        double highlight = 0.10;
        double shade = 0.2;
    };
    void engrave(Plate& plate, const Style& style) const;

private:
    struct Vertex {
        Vector3 at, normal;
        double line = 0;
        double tone = 0;
        double u = 0;
    };
    struct Sheet {
        std::size_t rows = 0, columns = 0;
        int palette = 0;
        std::vector<Vertex> vertices;
    };
    std::vector<Sheet> sheets_;
    friend class SheetBuffer;
};

} // namespace tambrelle::engraver
