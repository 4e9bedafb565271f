#include "plates/engraver/Quantise.h"

#include <cmath>

namespace tambrelle::engraver {

namespace {

// Colours are gathered in cells of 6 bits a channel before they are sorted out.
struct Cell {
    int key = 0;
    double count = 0;
    std::array<double, 3> mean{};
};

int keyOf(const unsigned char* p) {
    return ((p[0] >> 2) << 12) | ((p[1] >> 2) << 6) | (p[2] >> 2);
}
unsigned char nearestByte(double level) {
    return static_cast<unsigned char>(std::lround(level));
}

bool isWhite(const unsigned char* p) {
    return p[0] >= 253 && p[1] >= 253 && p[2] >= 253;
}

std::vector<Cell> gather(const Picture& picture) {
    std::vector<Cell> all(1U << 18);
    for (std::size_t i = 0; i < picture.rgb.size(); i += 3) {
        const unsigned char* p = &picture.rgb[i];
        if (isWhite(p))
            continue;
        Cell& cell = all[static_cast<std::size_t>(keyOf(p))];
        cell.count += 1;
        for (std::size_t c = 0; c < 3; ++c)
            cell.mean[c] += p[c];
    }
    std::vector<Cell> used;
    for (std::size_t k = 0; k < all.size(); ++k)
        if (all[k].count > 0) {
            all[k].key = static_cast<int>(k);
            for (double& m : all[k].mean)
                m /= all[k].count;
            used.push_back(all[k]);
        }
    return used;
}

struct Box {
    std::size_t from = 0;
    std::size_t to = 0;
    std::size_t axis = 0;
    double weight = 0; // how much splitting it would help
};

void measure(Box& box, const std::vector<Cell>& cells) {
    std::array<double, 3> sum{}, squares{};
    double count = 0;
    for (std::size_t i = box.from; i < box.to; ++i) {
        count += cells[i].count;
        for (std::size_t c = 0; c < 3; ++c) {
            sum[c] += cells[i].count * cells[i].mean[c];
            squares[c] += cells[i].count * cells[i].mean[c] * cells[i].mean[c];
        }
    }
    box.weight = 0;
    for (std::size_t c = 0; c < 3; ++c) {
        const double spread = squares[c] - sum[c] * sum[c] / std::max(count, 1.0);
        if (spread > box.weight) {
            box.weight = spread;
            box.axis = c;
        }
    }
    if (box.to - box.from < 2)
        box.weight = 0;
}

std::vector<std::array<double, 3>> medianCut(std::vector<Cell>& cells, std::size_t colours) {
    std::vector<Box> boxes{{0, cells.size(), 0, 0}};
    measure(boxes[0], cells);
    while (boxes.size() < colours) {
        std::size_t widest = 0;
        for (std::size_t i = 1; i < boxes.size(); ++i)
            if (boxes[i].weight > boxes[widest].weight)
                widest = i;
        Box& box = boxes[widest];
        if (box.weight <= 0)
            break;
        const std::size_t axis = box.axis;
        std::sort(cells.begin() + static_cast<std::ptrdiff_t>(box.from),
                  cells.begin() + static_cast<std::ptrdiff_t>(box.to), [axis](const Cell& a, const Cell& b) {
                      return a.mean[axis] < b.mean[axis] || (a.mean[axis] == b.mean[axis] && a.key < b.key);
                  });
        double sum = 0, count = 0;
        for (std::size_t i = box.from; i < box.to; ++i) {
            sum += cells[i].count * cells[i].mean[axis];
            count += cells[i].count;
        }
        std::size_t cut = box.from + 1;
        while (cut + 1 < box.to && cells[cut].mean[axis] < sum / count)
            ++cut;
        Box upper{cut, box.to, 0, 0};
        box.to = cut;
        measure(box, cells);
        measure(upper, cells);
        boxes.push_back(upper);
    }
    std::vector<std::array<double, 3>> centres;
    for (const Box& box : boxes) {
        std::array<double, 3> sum{};
        double count = 0;
        for (std::size_t i = box.from; i < box.to; ++i) {
            count += cells[i].count;
            for (std::size_t c = 0; c < 3; ++c)
                sum[c] += cells[i].count * cells[i].mean[c];
        }
        if (count > 0)
            centres.push_back({sum[0] / count, sum[1] / count, sum[2] / count});
    }
    return centres;
}

std::size_t nearest(const std::vector<std::array<double, 3>>& centres, const std::array<double, 3>& p) {
    std::size_t best = 0;
    double least = 1e12;
    for (std::size_t k = 0; k < centres.size(); ++k) {
        const double r = centres[k][0] - p[0], g = centres[k][1] - p[1], b = centres[k][2] - p[2];
        const double d = 3 * r * r + 4 * g * g + 2 * b * b; // nearer to the eye's weights than plain distance
        if (d < least) {
            least = d;
            best = k;
        }
    }
    return best;
}

} // namespace

IndexedPicture quantise(const Picture& picture, int colours) {
    IndexedPicture out;
    out.width = picture.width;
    out.height = picture.height;
    out.palette.push_back({255, 255, 255});
    std::vector<Cell> cells = gather(picture);
    std::vector<unsigned char> lookup(1U << 18, 0);
    if (!cells.empty()) {
        std::vector<std::array<double, 3>> centres = medianCut(cells, static_cast<std::size_t>(colours - 1));
        std::vector<std::size_t> owner(cells.size());
        for (int round = 0; round < 3; ++round) {
            std::vector<std::array<double, 4>> sums(centres.size());
            for (std::size_t i = 0; i < cells.size(); ++i) {
                owner[i] = nearest(centres, cells[i].mean);
                std::array<double, 4>& s = sums[owner[i]];
                for (std::size_t c = 0; c < 3; ++c)
                    s[c] += cells[i].count * cells[i].mean[c];
                s[3] += cells[i].count;
            }
            for (std::size_t k = 0; k < centres.size(); ++k)
                if (sums[k][3] > 0)
                    centres[k] = {sums[k][0] / sums[k][3], sums[k][1] / sums[k][3], sums[k][2] / sums[k][3]};
        }
        for (std::size_t i = 0; i < cells.size(); ++i)
            lookup[static_cast<std::size_t>(cells[i].key)] = static_cast<unsigned char>(owner[i] + 1);
        for (const std::array<double, 3>& c : centres)
            out.palette.push_back({nearestByte(c[0]), nearestByte(c[1]), nearestByte(c[2])});
    }
    out.indices.reserve(picture.rgb.size() / 3);
    for (std::size_t i = 0; i < picture.rgb.size(); i += 3) {
        const unsigned char* p = &picture.rgb[i];
        out.indices.push_back(isWhite(p) ? 0 : lookup[static_cast<std::size_t>(keyOf(p))]);
    }
    return out;
}

} // namespace tambrelle::engraver
