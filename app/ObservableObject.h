#pragma once

#include <QObject>

namespace tambrelle {

/// An object whose published values announce each change before it happens.
class ObservableObject : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    /// A group of changes is under way, and `groupDidChange` is still to come.
    [[nodiscard]] bool isInGroup() const { return inGroup; }

signals:
    /// A published value is about to be assigned; it still reads as before.
    void objectWillChange();
    /// The group of changes that was under way is complete.
    void groupDidChange();

private:
    friend class ChangeGroup;
    bool inGroup = false;
};

/// Holds the changes of a scope together, so that what observes the object need not wait for another turn of
/// the event loop to see all of them. A scope within a scope is part of it.
class ChangeGroup final {
public:
    explicit ChangeGroup(ObservableObject& object) : object(object), outermost(!object.inGroup) {
        object.inGroup = true;
    }
    ~ChangeGroup() {
        if (!outermost)
            return;
        object.inGroup = false;
        emit object.groupDidChange();
    }
    ChangeGroup(const ChangeGroup&) = delete;
    ChangeGroup& operator=(const ChangeGroup&) = delete;

private:
    ObservableObject& object;
    bool outermost;
};

} // namespace tambrelle
