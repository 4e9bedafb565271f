#pragma once

#include "plates/engraver/PlaneCuts.h"

namespace tambrelle::engraver {

/// A joint of an animal's body: its place, z towards the viewer, and its thickness.
struct Joint {
    double x = 0;
    double y = 0;
    double z = 0;
    double radius = 5;
};

/// How a chain of joints melts into what stands already.
struct ChainForm {
    /// Reach of the fillet in units: 16 trunk, 5 legs, 2 lips and ears.
    double blend = 10;
    /// Index into the palettes given to Body::engrave().
    int palette = 0;
    /// Flattening towards the viewer: ears 0.45.
    double depth = 1;
    /// Direction of the coat in degrees; absent: along the chain.
    std::optional<double> coat = std::nullopt;
};

/// Strokes of fur or wool along the body.
struct Fur {
    double spacing = 2.4;
    double length = 8;
    double width = 0.6;
    /// Tone above which hairs are drawn; below 0 they are everywhere.
    double from = 0.24;
    /// A second, crossing set above this tone; 1 for none.
    double crossFrom = 1;
    double spread = 13;
    /// Turn of a hair along its length, degrees in all: wool 200.
    double curl = 0;
    std::function<bool(Point)> where = {};
};

/// Scale-like tips of feathers over the body.
struct Plumage {
    double spacing = 9;
    double size = 8;
    double width = 0.55;
    std::function<bool(Point)> where = {};
    /// Share of the size at a place.
    std::function<double(Point)> sizeAt = {};
};

/// The smooth union of round cones: chains of joints are the only verb. Animals face left.
class Body {
public:
    Body& chain(const std::vector<Joint>& joints, const ChainForm& form = {});
    /// Everything so far looks the other way: x becomes `axis` * 2 - x.
    Body& mirror(double axis);

    struct Style {
        std::vector<Palette> palettes = {palettes::bay};
        double contour = 0.9;
        /// Depth, in units, at which one part before another gets a line.
        double edge = 2.2;
        double ambient = 0;
        double washStrength = 0.82;
        /// Tones up to this stay near paper white: raise it for dark coats (0.04), or highlights read as
        /// spots.
        double highlight = 0.10;
        /// Share 0...1 of palette 1 over palette 0 at a place and depth z (patches, stripes); absent: none.
        std::function<double(Point, double z)> marking = {};
        bool hatched = true;
        PlaneCuts cuts{.normal = {0.42, 0.72, 0.55}, .spacing = 2.3, .from = 0.26, .coverage = 0.48};
        Vector3 crossNormal{0.75, -0.45, 0.5};
        double crossFrom = 0.66;
        double shade = 0.25;
    };
    /// Washes, hatches and outlines the body.
    void engrave(Plate& plate, const Style& style);
    /// After engrave(): hairs and feathers upon it.
    void fur(Plate& plate, const Fur& fur) const;
    void plumage(Plate& plate, const Plumage& plumage) const;
    /// After engrave(): tone at a place, or nothing beside the body; and the depth there.
    std::optional<double> toneAt(Point p) const;
    double depthAt(Point p) const;
    /// The direction of the coat at a place.
    Point coatAt(Point p) const;

    struct Cone {
        Vector3 a, b;
        double ra = 0, rb = 0, blend = 0, flat = 1;
        int palette = 0;
        Point coat;
        // Worked out once.
        Vector3 ba;
        double l2 = 0, rr = 0, a2 = 0, il2 = 0;
        void prepare();
        double distance(double x, double y, double z) const;
    };

private:
    std::vector<Cone> cones_;
    // Maps at half the plate's resolution within a window.
    Plate::Window window_; // in coarse pixels
    Field depth_, tone_, facing_;
    Grid<Point> coat_;
    Field hit_;
};

} // namespace tambrelle::engraver
