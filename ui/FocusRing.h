#pragma once

#include <QWidget>

namespace tambrelle {

/// A ring around whichever control of its parent the keyboard has been moved to. Clicking shows none.
class FocusRing final : public QWidget {
    Q_OBJECT

public:
    explicit FocusRing(QWidget* panel);

    /// Call when the panel has been laid out anew.
    void follow();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QWidget* control = nullptr;
};

} // namespace tambrelle
