#pragma once

#include "plates/engraver/Body.h"
#include "plates/engraver/zoology/Eye.h"

namespace tambrelle::engraver {

/// Where a head is and which way it looks. Its own axes: u from the poll (0) to the tip of the nose (1), v
/// square to that towards the throat, z towards the viewer, all in lengths of the head. The head looks left
/// (`degrees` 180 level, 120 hanging) or, mirrored, right (0 level, 60 hanging).
struct HeadPose {
    Point poll;
    double degrees = 125;
    double length = 55;
    bool looksRight = false;

    Point at(double u, double v) const {
        return poll + direction(degrees) * (u * length) +
               direction(degrees + (looksRight ? 90 : -90)) * (v * length);
    }
    Path path(const Path& inHead) const {
        Path out;
        for (const Point& p : inHead)
            out.push_back(at(p.x, p.y));
        return out;
    }
    std::vector<Joint> joints(const std::vector<Joint>& inHead) const {
        std::vector<Joint> out;
        for (const Joint& j : inHead) {
            const Point p = at(j.x, j.y);
            out.push_back({p.x, p.y, j.z * length, j.radius * length});
        }
        return out;
    }
};

/// A line of the face, in the head's axes; its width in units.
struct FaceLine {
    Path path;
    double width = 0.7;
    /// Fades at its end rather than stopping.
    bool fading = true;
};

/// The build of a kind's head, in the head's axes.
struct HeadBuild {
    struct Part {
        std::vector<Joint> joints;
        double blend = 5;
        int palette = 0;
    };
    std::vector<Part> parts;
    Point eyeAt{0.2, -0.06};
    /// Its radius is in lengths of the head.
    EyeForm eye = {};
    /// Turn of the lids from the head's axis, degrees.
    double eyeTurn = 30;
    std::vector<FaceLine> lines;
    /// Outline of a bare, black nose; empty for none.
    Path nose = {};
};

/// Equids: long straight face, deep jowl, soft lips.
const HeadBuild& equineHead();
/// Cattle: broad brow, square wet muzzle (palette 2).
const HeadBuild& bovineHead();
/// Goats and their kin: wedge with a straight nose, pale eye with a level bar.
const HeadBuild& caprineHead();
/// Sheep: convex nose.
const HeadBuild& ovineHead();
/// Deer: slender, black nose (palette 2), great dark eye.
const HeadBuild& cervineHead();
/// Pigs: cone with a disc (palette 2).
const HeadBuild& porcineHead();
/// Hounds: domed skull, stop, square flews, black nose (palette 2).
const HeadBuild& canineHead();

/// An ear as a flattened chain: `at` its root in the head's axes (z in lengths of the head), `degrees` its
/// direction on the plate; `length` and `width` (half) in units, `bend` turns it along its length.
struct Ear {
    Point at{0, -0.2};
    double z = 0.1;
    double degrees = -80;
    double length = 18;
    double width = 3.8;
    double bend = 0;
    int palette = 0;
    /// Its hollow shows and is shaded.
    bool open = true;
};

void addHead(Body& body, const HeadPose& pose, const HeadBuild& build);
void addEar(Body& body, const HeadPose& pose, const Ear& ear);
/// After Body::engrave(): eye, nostril, mouth and folds; the hollow of an ear.
void drawFace(Plate& plate, const HeadPose& pose, const HeadBuild& build);
void drawEar(Plate& plate, const HeadPose& pose, const Ear& ear, Colour hollow = {0.45, 0.32, 0.24});

} // namespace tambrelle::engraver
