#pragma once

#include "plates/engraver/Plate.h"
#include "plates/engraver/Profile.h"

namespace tambrelle::engraver {

/// A legume along a spine, base first: shut, with its seeds bulging, or split to show them.
struct PodForm {
    double width = 9;
    int seeds = 6;
    bool open = true;
    Palette palette = palettes::leaf;
    Palette inside = palettes::leafy;
    Palette seed = palettes::leafy;
    /// Length over breadth of a seed (beans 1.6).
    double seedSquash = 1;
};
void pod(Plate& plate, const Path& spine, const PodForm& form = {});

/// A dry capsule: urn (poppy), egg with pores, or split into valves (cotton, horse chestnut): base at `at`.
struct CapsuleForm {
    double radius = 14;
    double length = 30;
    Profile shape = {0.25, 0.8, 1, 1, 0.85, 0.6};
    Palette palette = palettes::leaf;
    int ribs = 0;
    /// A rayed lid on top (poppy).
    bool lid = false;
    int prickles = 0;
};
void capsule(Plate& plate, Point at, double degrees, const CapsuleForm& form = {});

} // namespace tambrelle::engraver
