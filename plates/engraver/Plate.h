#pragma once

#include "plates/engraver/Layer.h"
#include "plates/engraver/Patch.h"
#include "plates/engraver/Random.h"
#include "plates/engraver/Rasteriser.h"

#include <memory>
#include <optional>

namespace tambrelle::engraver {

/// How what lies below gives way to a new part: its ink is cleared out to `halo` units beyond the outline,
/// and a soft shadow of strength `shade` falls on it, displaced by `offset` units.
struct KnockOut {
    double halo = 0.7;
    double shade = 0.30;
    Point offset{1.6, 2.2};
};

/// A single line of the burin. Widths in units (one unit is about a pixel at 288 x 260).
struct Pen {
    double width = 0.7;
    /// Shares of the length over which the line swells from a fine start and fades to a fine end.
    double swell = 0.25;
    double fade = 0.25;
    /// Sideways unsteadiness of the hand, in units.
    double wobble = 0.12;
    Colour colour = sepia;
    double alpha = 1;
};

/// A contour that is thick on the side away from the light and `lit` of that on the lit side.
struct Contour {
    double width = 0.8;
    double lit = 0.45;
    bool closed = true;
    double wobble = 0.1;
    double alpha = 1;
};

/// Tone-driven hatching over a Patch: lines run along its rows, their width is tone x local spacing x
/// coverage, and every other line drops out where they crowd.
struct Hatch {
    double spacing = 2.1;
    double coverage = 0.5;
    /// Tone at which lines begin.
    double from = 0.24;
    double gamma = 1.1;
    double widest = 1.1;
    /// Unevenness of the spacing (share of it) and waviness of the lines (units).
    double jitter = 0.10;
    double wobble = 0;
    Colour colour = sepia;
};

/// The copper plate: a drawing surface of `width` x `height` units with a layer of wash and a layer of ink.
///
/// Painter's order: what is drawn later lies above, knocks out the ink beneath and casts a soft shadow on it.
/// The finished picture is cut to the subject with even margins, so recipes may use any part of the surface.
class Plate {
public:
    static constexpr int width = 400;
    static constexpr int height = 372;
    /// What reaches beyond the surface's edges is kept this far, in units.
    static constexpr int bleed = 24;
    /// Pixels a unit.
    static constexpr int scale = 4;

    /// `name` is the image's name; it seeds every random choice.
    explicit Plate(std::string_view name);

    Random random;

    // Parts.
    void knockOut(const Path& outline, const KnockOut& how = {});
    /// Shadows are not cast while off (for heaps of like small parts).
    void castShadows(bool on) { shadows_ = on; }

    // Wash.
    void flat(const Path& outline, Colour colour, double alpha = 1);
    void flat(const Path& outline, const Palette& palette, double tone) {
        flat(outline, ramp(palette, tone));
    }
    /// A smooth wash over a patch; `colourAt(i, j)` for each of its points.
    void wash(const Patch& patch, const std::function<Colour(std::size_t, std::size_t)>& colourAt);
    /// A tonal wash: the ramp of `palette` at tone x `strength` + `lift`.
    void wash(const Patch& patch, const Palette& palette, double strength = 0.78, double lift = 0,
              double highlight = 0.10);
    /// Wash slipped under all washes laid so far (ground shadows).
    void underwash(const Path& outline, Colour colour, double alpha);

    // Ink.
    void ink(const Path& outline, Colour colour = sepia, double alpha = 1);
    void stroke(const Path& path, const Pen& pen = {});
    /// A stroke whose width is given at every point.
    void stroke(const Path& path, const std::vector<double>& widths, const Pen& pen);
    void contour(const Path& outline, const Contour& how = {});
    void contour(const Path& outline, double width) {
        Contour how;
        how.width = width;
        contour(outline, how);
    }
    void hatch(const Patch& patch, const Hatch& how = {});
    /// A filled dot or ellipse of ink.
    void dot(Point centre, double radius, Colour colour = sepia, double alpha = 1);
    /// Paper showing through: clears ink and wash within the outline.
    void highlight(const Path& outline);

    /// While it lives, wash and ink stay within an outline (and within those of any clip around it).
    class Clip {
    public:
        Clip(Plate& plate, const Path& outline);
        ~Clip();
        Clip(const Clip&) = delete;
        Clip& operator=(const Clip&) = delete;

    private:
        Plate& plate_;
    };
    /// While it lives, ink goes beneath all ink and wash laid so far.
    class Under {
    public:
        explicit Under(Plate& plate) : plate_(plate) { plate_.under_ = true; }
        ~Under() { plate_.under_ = false; }
        Under(const Under&) = delete;
        Under& operator=(const Under&) = delete;

    private:
        Plate& plate_;
    };

    // For the solvers that work by pixel (a window is in pixels).
    struct Window {
        int x = 0;
        int y = 0;
        int width = 0;
        int height = 0;
    };
    /// The pixel window of some bounds in units with a margin in units, cut to the plate.
    static Window windowOf(const Bounds& bounds, double margin);
    /// Coverage of an outline within a window.
    Field maskOf(const Path& outline, const Window& window);
    void layWash(const Window& window, const Grid<Colour>& colours, const Field& alpha);
    void layInk(const Window& window, const Field& alpha, Colour colour = sepia);
    void clearInk(const Window& window, const Field& alpha);
    void shade(const Window& window, const Field& alpha, double strength);

    const Layer& washLayer() const { return wash_; }
    const Layer& inkLayer() const { return ink_; }

private:
    struct Mask {
        Window window;
        Field cover;
    };
    double clipAt(int x, int y) const;
    template <class Paint>
    void fill(const Path& outline, const Paint& paint);
    void triangle(const Point (&corners)[3], const Colour (&colours)[3]);
    void ribbon(const Path& path, const std::vector<double>& halfWidths, Colour colour, double alpha);

    Layer wash_;
    Layer ink_;
    Rasteriser rasteriser_;
    std::vector<Mask> clips_;
    Path pixels_;
    bool shadows_ = true;
    bool under_ = false;
};

} // namespace tambrelle::engraver
