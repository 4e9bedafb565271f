#pragma once

#include <QTimeEdit>

namespace tambrelle {

/// A time of day to be typed, stepped or rolled. The toolkit's own refuses digits where both of a number
/// stand already; here a click chooses the hour or the minute, and typing replaces it.
class TimePicker final : public QTimeEdit {
    Q_OBJECT

public:
    explicit TimePicker(QWidget* parent = nullptr);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
};

} // namespace tambrelle
