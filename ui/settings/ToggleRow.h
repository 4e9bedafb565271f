#pragma once

#include <QCheckBox>

namespace tambrelle {

/// A row of a form that is one toggle: its label on the leading side, a switch on the trailing one. The whole
/// row can be clicked. Its content stands FormMetrics::focusOutset inside of it, to leave room for the focus.
class ToggleRow final : public QCheckBox {
    Q_OBJECT

public:
    explicit ToggleRow(const QString& label, QWidget* parent = nullptr);

    /// Shows a state that the user has not chosen just now: toggled() stays silent. A wish of the user's
    /// emits it, by whatever way it comes: a screen reader toggles without a click.
    void showState(bool on);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;
    [[nodiscard]] bool hitButton(const QPoint& place) const override;

private:
    void drawSwitch(QPainter& painter, const QRectF& track) const;
    void drawFocus(QPainter& painter, const QRectF& track) const;
};

} // namespace tambrelle
