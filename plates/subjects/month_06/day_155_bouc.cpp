#include "plates/engraver/Ground.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Leaf.h"
#include "plates/engraver/zoology/Caprine.h"
#include "plates/engraver/zoology/Horn.h"
#include "plates/engraver/zoology/Locks.h"

using namespace tambrelle::engraver;

// The billy-goat reared on its hind legs to browse a bush, looking right: pale coat, twisted spreading horns,
// full beard.
static const Subject subject{
    "day_155_bouc", [](Plate& p) {
        constexpr Palette hair{0xFFFDF4, 0xEDE3CC, 0xA8977A};
        // The bush it browses.
        twig(p, {{262, 302}, {258, 232}, {266, 176}, {262, 118}, {254, 66}}, {5, 4, 3, 1.6});
        twig(p, {{263, 196}, {280, 166}, {290, 132}}, {2.6, 2, 1.2});
        twig(p, {{259, 236}, {280, 216}, {294, 206}}, {2.4, 1.8, 1});
        twig(p, {{265, 150}, {248, 130}, {240, 122}}, {2.2, 1.6, 1});
        const LeafForm green{
            .width = 9.5, .margin = serrate(7, 0.14), .palette = palettes::leafy, .veins = 5};
        struct Spray {
            Point root, tip;
        };
        for (const Spray& s :
             {Spray{{254, 68}, {240, 46}}, Spray{{255, 70}, {268, 44}}, Spray{{257, 92}, {278, 80}},
              Spray{{262, 118}, {282, 108}}, Spray{{290, 134}, {302, 112}}, Spray{{288, 146}, {306, 138}},
              Spray{{284, 160}, {300, 162}}, Spray{{242, 124}, {230, 106}}, Spray{{245, 127}, {226, 122}},
              Spray{{294, 207}, {308, 194}}, Spray{{288, 212}, {306, 216}}, Spray{{278, 218}, {274, 198}},
              Spray{{266, 176}, {284, 182}}, Spray{{259, 246}, {280, 250}}})
            leaf(p, {s.root, lerp(s.root, s.tip, 0.5) + Point{1.5, -1.5}, s.tip}, green);

        Body body;
        // Far limbs.
        body.chain({{206, 156, -11, 13},
                    {232, 148, -11, 9},
                    {240, 150, -11, 6},
                    {250, 162, -11, 4.2},
                    {256, 170, -11, 4}},
                   {.blend = 6});
        body.chain({{122, 222, -12, 19},
                    {140, 240, -12, 12},
                    {134, 256, -12, 7},
                    {124, 266, -12, 5.4},
                    {132, 284, -12, 4},
                    {134, 290, -12, 4}},
                   {.blend = 6});
        // Trunk from rump to breast.
        body.chain(
            {{112, 210, 0, 20}, {124, 202, 0, 24}, {148, 186, 0, 27}, {174, 164, 0, 28}, {192, 146, 0, 26}},
            {.blend = 16, .coat = 150});
        body.chain({{174, 138, 0, 10}, {188, 126, 0, 9}}, {.blend = 12, .coat = 150});
        body.chain({{104, 200, 0, 5}, {94, 194, 0, 4.6}, {86, 186, 0, 2}}, {.blend = 4});
        body.chain({{190, 142, 0, 23}, {200, 116, 0, 17}, {206, 96, 0, 13.5}}, {.blend = 12, .coat = 100});
        // Near limbs.
        body.chain({{188, 152, 11, 18}, {202, 160, 12, 14}}, {.blend = 10});
        body.chain({{200, 164, 12, 12.5},
                    {222, 172, 12, 9},
                    {232, 174, 12, 6},
                    {236, 188, 12, 4.2},
                    {238, 198, 12, 4.2}},
                   {.blend = 6});
        body.chain({{120, 212, 10, 21},
                    {124, 230, 12, 18},
                    {122, 246, 12, 11},
                    {106, 262, 12, 6.6},
                    {104, 268, 12, 5.6},
                    {108, 282, 12, 4.2},
                    {110, 288, 12, 4.2}},
                   {.blend = 7});
        HeadPose head{{206, 84}, 22, 46, true};
        const Ear ear{.at = {0.0, 0.02}, .z = 0.24, .degrees = 168, .length = 22, .width = 4.4, .bend = -20};
        addHead(body, head, caprineHead());
        addEar(body, head, ear);
        horn(p, {{206, 74}, {196, 60}, {196, 42}, {206, 28}, {200, 14}}, {4.6, 4.2, 3.4, 2.4, 0.7},
             {.rings = 10, .tone = 0.08});
        Body::Style style = coat({hair});
        style.cuts.from = 0.34;
        body.engrave(p, style);
        body.fur(p, {.spacing = 2.5, .length = 11, .width = 0.6, .from = 0.10, .spread = 12});
        horn(p, {{201, 73}, {186, 62}, {182, 44}, {170, 30}, {166, 14}}, {5.2, 4.7, 3.8, 2.6, 0.7},
             {.rings = 12});
        const auto fringe = [&p, &hair](Point from, Point to, double length) {
            hangingCoat(p, from, to, length, hair, 0.3);
        };
        fringe({134, 222}, {176, 190}, 22);
        fringe({176, 192}, {196, 172}, 20);
        fringe({188, 160}, {202, 130}, 18);
        for (const auto& [sole, back] : {std::pair{Point{135, 297}, true}, std::pair{Point{111, 298}, false}})
            hoof(p, sole, {.width = 4.6, .height = 9, .palette = palettes::dun, .tone = back ? 0.65 : 0.55});
        hoof(p, {258, 180}, {.width = 4.2, .height = 9, .palette = palettes::dun});
        hoof(p, {239, 208}, {.width = 4.4, .height = 9, .palette = palettes::dun});
        drawEar(p, head, ear);
        drawFace(p, head, caprineHead());
        lock(p, {head.at(0.74, 0.20), head.at(0.72, 0.36), head.at(0.60, 0.72)}, {4.4, 5.6, 3.6, 0.4},
             {.palette = hair, .strands = 26, .tone = 0.42});
        lock(p, {{204, 72}, {212, 74}, {222, 84}}, {3.4, 3.2, 0.4},
             {.palette = hair, .strands = 12, .tone = 0.3});
        ground(p, 76, 300, 298);
        grassTufts(p, 84, 294, 303, 10);
    }};
