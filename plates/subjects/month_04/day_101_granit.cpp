#include "plates/engraver/Ground.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/minerals/Stone.h"

using namespace tambrelle::engraver;

// Granite: a rounded boulder speckled with black mica, rosy feldspar and glassy quartz.
static const Subject subject{
    "day_101_granit", [](Plate& p) {
        ground(p, 68, 336, 292, 6);
        const std::vector<Grain> minerals{{0.26, sepia, 1},
                                          {0.30, Colour{0xD79F92}, 0.75},
                                          {0.24, white, 0.85},
                                          {0.20, Colour{0x8D8A86}, 0.6}};
        const auto boulder = [&](const Path& corners, const StoneForm& form, int grains) {
            strew(p, stone(p, corners, form), grains, minerals);
        };
        boulder({{92, 256},
                 {102, 194},
                 {140, 142},
                 {192, 114},
                 {246, 122},
                 {292, 162},
                 {314, 218},
                 {306, 274},
                 {256, 300},
                 {170, 304},
                 {110, 290}},
                {.seed = 46, .facets = 13, .rough = 0.9, .depth = 60, .tone = -0.06}, 1700);
        boulder({{70, 296}, {80, 272}, {106, 264}, {128, 280}, {130, 304}, {102, 314}, {78, 310}},
                {.seed = 5, .facets = 7, .rough = 0.5, .depth = 22, .tone = -0.04}, 190);
        boulder({{282, 304}, {294, 286}, {316, 288}, {328, 306}, {308, 316}, {290, 314}},
                {.seed = 8, .facets = 6, .rough = 0.4, .depth = 16, .tone = -0.04}, 110);
    }};
