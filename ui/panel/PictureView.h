#pragma once

#include "ui/panel/PrintedPlate.h"

#include <QWidget>

#include <optional>

namespace tambrelle {

class TextLabel;

/// The day's picture in its rounded frame, or an emoji in its place.
class PictureView final : public QWidget {
    Q_OBJECT

public:
    explicit PictureView(QWidget* parent = nullptr);

    /// `file` is the picture's; absent, or unreadable, for the emoji.
    void present(const std::optional<QString>& file, const QString& emoji);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    TextLabel* emojiLabel;
    PrintedPlate plate;
};

} // namespace tambrelle
