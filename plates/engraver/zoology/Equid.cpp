#include "plates/engraver/zoology/Equid.h"

namespace tambrelle::engraver {

Quadruped equid() {
    Quadruped q;
    q.trunk = {{102, 122, 0, 28}, {126, 126, 0, 31}, {158, 128, 0, 30},
               {184, 121, 0, 27}, {204, 117, 0, 25}, {215, 124, 0, 18}};
    q.swellings = {{{114, 100, 0, 11}, {136, 101, 0, 7}}, {{196, 103, 0, 13}, {212, 110, 0, 12}}};
    q.neck = {{104, 112, 0, 27}, {91, 92, 0, 22}, {80, 72, 0, 17}, {72, 56, 0, 13}};
    q.head = {{70, 53}, 126, 56};
    q.ears = {{.at = {-0.10, -0.16}, .z = -0.12, .degrees = -100, .length = 17, .width = 3.2},
              {.at = {-0.14, -0.06}, .z = 0.12, .degrees = -98, .length = 19, .width = 3.7}};
    return q;
}

} // namespace tambrelle::engraver
