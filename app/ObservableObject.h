#pragma once

#include <QObject>

namespace tambrelle {

/// An object whose published values announce each change before it happens.
class ObservableObject : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

signals:
    /// A published value is about to be assigned; it still reads as before.
    void objectWillChange();
};

} // namespace tambrelle
