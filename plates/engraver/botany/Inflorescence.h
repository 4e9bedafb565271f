#pragma once

#include "plates/engraver/botany/CompoundLeaf.h"
#include "plates/engraver/botany/Flower.h"

namespace tambrelle::engraver {

/// Draws one flower (fruit, floret, spikelet) with its base at `at`, looking in the direction `degrees`;
/// `scale` is 1 for the largest of the cluster, `side` -1 left, +1 right.
using FlowerAt = std::function<void(Plate&, Point at, double degrees, double scale, int side)>;
/// Sets flowers on a stem (its curve, base to tip).
using Inflorescence = std::function<void(Plate&, const Path& stem)>;

// Ready-made flowers for clusters.
FlowerAt flowers(const FlowerForm& form);
FlowerAt bells(const BellForm& form);
FlowerAt lips(double size, Palette palette);
FlowerAt peas(double size, Palette palette, std::optional<Palette> wings = std::nullopt);
FlowerAt florets(double radius, Palette palette, int petals = 5);
FlowerAt composites(const CompositeForm& form);
FlowerAt globes(const GlobeForm& form);
/// Plain berries or buds.
FlowerAt berries(double radius, Palette palette, double squash = 1);

/// One flower at the tip.
Inflorescence solitary(const FlowerAt& flower);

/// Stalked flowers up a stem: raceme; without stalks: spike; `perNode` 3 or more: whorls.
struct Raceme {
    FlowerAt flower;
    int nodes = 9;
    /// The share of the stem that bears flowers.
    double from = 0.55;
    double to = 1;
    int perNode = 2;
    /// Angle of the stalks from the stem at the lowest node (they close up to the tip), and their length.
    double angle = 70;
    double pedicel = 8;
    /// Size of the lowest and the highest flower.
    double largest = 1;
    double smallest = 0.5;
    /// Units by which flowers hang from a bowed stalk; 0: they look outward.
    double nod = 0;
    /// All to one side: +1 right, -1 left, 0 both.
    int oneSided = 0;
    Palette stalk = palettes::stem;
};
Inflorescence raceme(const Raceme& form);

/// Stalks from one point (umbel) or to one level (corymb): flowers spread over `spread` degrees at the tip.
struct Corymb {
    FlowerAt flower;
    int count = 9;
    double spread = 110;
    double length = 34;
    double scale = 1;
    Palette stalk = palettes::stem;
};
Inflorescence corymb(const Corymb& form);

/// Umbel of umbels, seen from the side: hemlock, coriander, angelica.
struct Umbel {
    int rays = 11;
    double length = 40;
    double spread = 120;
    /// 0.55 flat-topped, 1 globose.
    double flatness = 0.55;
    int raylets = 9;
    double rayletLength = 9;
    double floretRadius = 1.8;
    Palette palette = palettes::whiteflower;
    /// Instead of plain florets (seeds).
    FlowerAt floret = {};
    Palette stalk = palettes::stem;
    double rayRadius = 1.1;
};
Inflorescence umbel(const Umbel& form);

/// Many tiny flowers close along the stem: mignonette, amaranth, plantain.
struct Spike {
    /// Greatest half width, and how it runs from the spike's base to its tip.
    double radius = 5;
    double from = 0.55;
    Profile shape = {0.7, 1, 0.95, 0.8, 0.5, 0.1};
    /// Radius of one flower.
    double grain = 2;
    double density = 1;
    Palette palette = palettes::greygreen;
    Palette second = palettes::greygreen;
    double secondShare = 0.3;
};
Inflorescence spike(const Spike& form);

/// Branches that bear clusters: panicles (lilac, privet, lady's bedstraw).
struct Panicle {
    FlowerAt flower;
    double from = 0.5;
    int branches = 8;
    int perBranch = 7;
    /// Reach of the lowest branches, and their angle from the stem.
    double width = 40;
    double angle = 55;
    double largest = 1;
    double smallest = 0.7;
    /// 1 upright, -1 drooping.
    double rise = 1;
    Palette stalk = palettes::stem;
};
Inflorescence panicle(const Panicle& form);

/// A coiled (scorpioid) cyme: comfrey, heliotrope, viper's bugloss. Flowers sit on the outer side of the
/// curl.
struct CoiledCyme {
    FlowerAt flower;
    int count = 8;
    double length = 46;
    /// Of the curl.
    double radius = 10;
    double largest = 1;
    double smallest = 0.45;
    int branches = 2;
    double angle = 40;
    Palette stalk = palettes::stem;
};
Inflorescence coiledCyme(const CoiledCyme& form);

/// Several inflorescences on one stem.
Inflorescence together(const std::vector<Inflorescence>& parts);

} // namespace tambrelle::engraver
