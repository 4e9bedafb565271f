#pragma once

#include <QObject>

#include <cstdint>

namespace tambrelle {

enum class Contrast : std::uint8_t { normal, high };

/// How strongly the user wants what is on the screen to stand out, as told to the desktop.
class ContrastPreference : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    /// Normal as long as the desktop says nothing.
    [[nodiscard]] virtual Contrast contrast() const = 0;

signals:
    void changed();
};

} // namespace tambrelle
