#pragma once

#include "ui/panel/PanelSnapshot.h"

#include <QWidget>

namespace tambrelle {

class ResourceBundle;
class TextLabel;

/// Days since the last execution by guillotine.
class GuillotineSection final : public QWidget {
    Q_OBJECT

public:
    explicit GuillotineSection(const ResourceBundle& resources, QWidget* parent = nullptr);

    void present(const GuillotineContent& content);

private:
    TextLabel* daysSince;
};

} // namespace tambrelle
