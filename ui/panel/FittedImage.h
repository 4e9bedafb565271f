#pragma once

#include "ui/panel/PrintedPlate.h"

#include <QWidget>

namespace tambrelle {

/// A picture file as large as it fits its place, centred, printed on the theme's picture field as the plates
/// are; nothing where the file cannot be read.
class FittedImage final : public QWidget {
    Q_OBJECT

public:
    explicit FittedImage(const QString& file, QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    PrintedPlate plate;
};

} // namespace tambrelle
