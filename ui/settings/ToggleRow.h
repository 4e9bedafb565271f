#pragma once

#include <QCheckBox>

namespace tambrelle {

/// A row of a form that is one toggle: its label on the leading side, a switch on the trailing one. The whole
/// row can be clicked.
class ToggleRow final : public QCheckBox {
    Q_OBJECT

public:
    explicit ToggleRow(const QString& label, QWidget* parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;
    [[nodiscard]] bool hitButton(const QPoint& place) const override;
};

} // namespace tambrelle
