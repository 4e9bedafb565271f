#pragma once

#include <QWidget>

namespace tambrelle {

/// A hairline between two sections, or between two things of a row.
class Divider final : public QWidget {
    Q_OBJECT

public:
    explicit Divider(Qt::Orientation orientation, QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace tambrelle
