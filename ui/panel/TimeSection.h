#pragma once

#include "ui/panel/PanelSnapshot.h"

#include <QWidget>

namespace tambrelle {

class TextLabel;

/// The two clocks.
class TimeSection final : public QWidget {
    Q_OBJECT

public:
    explicit TimeSection(QWidget* parent = nullptr);

    void present(const TimeContent& content);

private:
    TextLabel* decimalTime;
    TextLabel* standardTime;
};

} // namespace tambrelle
