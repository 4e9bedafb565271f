#pragma once

#include "ui/panel/PanelSnapshot.h"

#include <QWidget>

namespace tambrelle {

class PictureView;
class ResourceBundle;
class TextLabel;

/// The plant, animal, tool or mineral that names the viewed day.
class DailyItemSection final : public QWidget {
    Q_OBJECT

public:
    explicit DailyItemSection(const ResourceBundle& resources, QWidget* parent = nullptr);

    void present(const DailyItemContent& content);

    /// In logical pixels.
    [[nodiscard]] int pictureHeight() const;
    void setPictureHeight(int height);

private:
    const ResourceBundle& resources;
    PictureView* picture;
    TextLabel* frenchName;
    TextLabel* caption;
    DailyItemContent shown;
};

} // namespace tambrelle
