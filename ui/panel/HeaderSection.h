#pragma once

#include "ui/panel/PanelSnapshot.h"

#include <QWidget>

namespace tambrelle {

class TextLabel;

/// The viewed day's full date.
class HeaderSection final : public QWidget {
    Q_OBJECT

public:
    explicit HeaderSection(QWidget* parent = nullptr);

    void present(const HeaderContent& content);

private:
    TextLabel* monthName;
    TextLabel* monthMeaning;
    TextLabel* monthEmoji;
    TextLabel* formattedDate;
    TextLabel* dayName;
    TextLabel* placeInDecade;
    TextLabel* civilDate;
};

} // namespace tambrelle
