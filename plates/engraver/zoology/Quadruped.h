#pragma once

#include "plates/engraver/zoology/Foot.h"
#include "plates/engraver/zoology/Head.h"

namespace tambrelle::engraver {

/// How far a leg swings: where its knee (hock) and its foot stand from the column of a standing leg, in units
/// (negative: forward, to the left).
struct Stride {
    double knee = 0;
    double foot = 0;
};

/// A standing or walking four-legged animal that looks left. The trunk is the animal's own; legs, feet and
/// face come from its measures.
struct Quadruped {
    /// Height of the ground, in units.
    double ground = 234;
    /// Joints from the breast to the rump.
    std::vector<Joint> trunk;
    /// Withers, croup, hump, dewlap, udder's root ...: chains melted onto the trunk.
    std::vector<std::vector<Joint>> swellings;
    std::vector<Joint> neck;
    HeadPose head;
    const HeadBuild* headBuild = &equineHead();
    std::vector<Ear> ears;

    /// Roots of the legs.
    Point elbow{103, 138};
    Point hip{206, 116};
    /// Half the distance between near and far legs.
    double spread = 13;
    /// Thickness of the legs below and above knee and hock; 1 is a horse's at 205 units of height.
    double bone = 1;
    double muscle = 1;
    /// Thickness of the shoulder's chain; 0 for none.
    double shoulder = 17;
    /// How far the hock stands behind the hip, as a share of a horse's.
    double angulation = 1;
    Stride foreNear{0, 0};
    Stride foreFar{-20, -17};
    Stride hindNear{0, 0};
    Stride hindFar{-12, -16};
    Foot foot = Foot::hoof;
    Palette hoofs = palettes::black;
    /// Palette of the legs below knee and hock.
    int socks = 0;

    /// The same animal `factor` times as large; the point `fixed` stays where it is.
    Quadruped scaled(double factor, Point fixed) const;

    /// The whole animal without hooves, mane and tail.
    Body body() const;
    /// After Body::engrave(): hooves or toes, face, hollows of the ears.
    void finish(Plate& plate) const;

private:
    struct Limb {
        std::vector<Joint> upper, lower;
        double footX = 0;
        double z = 0;
    };
    std::vector<Limb> limbs() const;
};

/// The coats' settings for Body::engrave(): one colour or several, smooth and lit; dark ones hold back the
/// paper white.
Body::Style coat(std::vector<Palette> palettes);
Body::Style darkCoat(std::vector<Palette> palettes);

/// Wool: small tufts that melt onto the chain through `joints`, `radius` beyond its surface, so that its
/// outline curls.
void addFleece(Body& body, const std::vector<Joint>& joints, double size, Random& random);

/// Patches of palette 1 by smooth noise: `share` about how much of the body they cover, `size` in units.
std::function<double(Point, double)> patches(std::uint64_t seed, double share, double size);

} // namespace tambrelle::engraver
