#include "plates/engraver/Subject.h"

namespace tambrelle::engraver {

namespace {
// Subjects register while the program starts, before any order among files is settled.
std::vector<const Subject*>& registry() {
    static std::vector<const Subject*> subjects;
    return subjects;
}
} // namespace

Subject::Subject(std::string_view imageName, Recipe recipe) : imageName_(imageName), recipe_(recipe) {
    registry().push_back(this);
}

std::vector<const Subject*> Subject::all() {
    std::vector<const Subject*> subjects = registry();
    std::sort(subjects.begin(), subjects.end(),
              [](const Subject* a, const Subject* b) { return a->imageName_ < b->imageName_; });
    return subjects;
}

const Subject* Subject::find(std::string_view imageName) {
    for (const Subject* subject : registry())
        if (subject->imageName_ == imageName)
            return subject;
    return nullptr;
}

} // namespace tambrelle::engraver
