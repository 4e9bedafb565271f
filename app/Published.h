#pragma once

#include "app/ObservableObject.h"

#include <utility>

namespace tambrelle {

/// A value of an ObservableObject that tells the object's observers before each assignment, of an equal value
/// too.
template <class T>
class Published {
public:
    /// The initial value is not announced.
    Published(ObservableObject& owner, T initial) : owner(owner), value(std::move(initial)) {}

    Published(const Published&) = delete;
    Published& operator=(const Published&) = delete;

    Published& operator=(T next) {
        emit owner.objectWillChange();
        value = std::move(next);
        return *this;
    }

    [[nodiscard]] const T& get() const { return value; }

private:
    ObservableObject& owner;
    T value;
};

} // namespace tambrelle
