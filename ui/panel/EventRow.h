#pragma once

#include "ui/panel/PanelSnapshot.h"

#include <QWidget>

namespace tambrelle {

class TextLabel;

/// One historical event.
class EventRow final : public QWidget {
    Q_OBJECT

public:
    explicit EventRow(QWidget* parent = nullptr);

    void present(const EventContent& content);

private:
    TextLabel* emoji;
    TextLabel* title;
    TextLabel* year;
    TextLabel* description;
};

} // namespace tambrelle
