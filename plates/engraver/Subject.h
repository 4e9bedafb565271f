#pragma once

#include "plates/engraver/Plate.h"

#include <string>
#include <string_view>
#include <vector>

namespace tambrelle::engraver {

/// A recipe and the image it makes. A file of plates/subjects/ defines one:
///
///     static const Subject subject{"day_067_chou-fleur", [](Plate& p) { ... }};
class Subject {
public:
    using Recipe = void (*)(Plate&);
    Subject(std::string_view imageName, Recipe recipe);

    std::string_view imageName() const { return imageName_; }
    /// The plate, drawn from scratch.
    Plate draw() const {
        Plate plate(imageName_);
        recipe_(plate);
        return plate;
    }
    /// Every recipe linked into the program, by name.
    static std::vector<const Subject*> all();
    /// The recipe of an image, or nullptr.
    static const Subject* find(std::string_view imageName);

private:
    std::string_view imageName_;
    Recipe recipe_;
};

} // namespace tambrelle::engraver
