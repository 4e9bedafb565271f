#include "plates/engraver/Ground.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/zoology/Bovid.h"
#include "plates/engraver/zoology/Horn.h"

using namespace tambrelle::engraver;

// The bull: high crest over a massive neck, light hindquarters, lowered head with short thick horns and a
// ring in the nose, curly forehead, dark coat.
static const Subject subject{
    "day_125_taureau", [](Plate& p) {
        Quadruped bull = cattle();
        bull.trunk = {{96, 126, 0, 36},  {118, 128, 0, 39}, {156, 132, 0, 34},
                      {192, 126, 0, 27}, {212, 121, 0, 23}, {222, 124, 0, 16}};
        bull.swellings = {{{98, 97, 0, 13}, {120, 99, 0, 10}, {150, 103, 0, 7}},
                          {{204, 106, 0, 9}, {220, 108, 0, 8}},
                          {{90, 160, 0, 10}, {80, 152, 0, 8}, {70, 146, 0, 5}}};
        bull.neck = {{100, 118, 0, 36}, {82, 118, 0, 31}, {66, 126, 0, 22}};
        bull.head = {{57, 124}, 122, 56};
        bull.elbow = {97, 156};
        bull.hip = {212, 122};
        bull.shoulder = 22;
        bull.muscle = 1.08;
        bull.bone = 1.12;
        bull.foreNear = {-9, -5};
        bull.foreFar = {-27, -22};
        bull.ears = {{.at = {0.02, 0.06}, .z = 0.26, .degrees = -8, .length = 20, .width = 4.4, .bend = 34}};
        Body body = bull.body();
        body.chain({{196, 160, 6, 7}, {198, 168, 6, 8}}, {.blend = 5});
        Body::Style style =
            darkCoat({Palette{0x94704F, 0x563825, 0x2A1B12}, palettes::black, palettes::darkgrey});
        style.ambient = 0.06;
        style.highlight = 0.02;
        horn(p, {{50, 114}, {40, 110}, {31, 100}, {31, 91}}, {5, 4.2, 2.6, 0.7}, {.tip = palettes::black});
        body.engrave(p, style);
        body.fur(p, {.spacing = 2.4,
                     .length = 5,
                     .width = 1.1,
                     .from = 0.0,
                     .spread = 50,
                     .curl = 150,
                     .where = [](Point q) { return q.x < 72 && q.x > 42 && q.y < 128 - (q.x - 60) * 0.2; }});
        horn(p, {{62, 112}, {64, 100}, {57, 91}, {48, 88}}, {5.4, 4.6, 2.8, 0.7}, {.tip = palettes::black});
        bull.finish(p);
        p.stroke(ellipse({24.5, 175}, 4, 5.4),
                 {.width = 1.5, .swell = 0, .fade = 0, .colour = Colour{0x8A6A24}});
        tuftedTail(p, {{224, 112}, {236, 122}, {238, 154}, {234, 180}}, 3.2,
                   Palette{0x6A4A32, 0x4A3020, 0x2A1B12}, palettes::black);
        ground(p, 46, 246, 233);
    }};
