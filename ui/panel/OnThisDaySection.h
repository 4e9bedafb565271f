#pragma once

#include "ui/panel/PanelSnapshot.h"

#include <QWidget>

#include <array>

namespace tambrelle {

class EventRow;

/// What happened on the viewed Republican day.
class OnThisDaySection final : public QWidget {
    Q_OBJECT

public:
    explicit OnThisDaySection(QWidget* parent = nullptr);

    void present(const OnThisDayContent& content);

private:
    std::array<EventRow*, shownEvents> rows;
};

} // namespace tambrelle
