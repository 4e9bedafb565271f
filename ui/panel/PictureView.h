#pragma once

#include <QColor>
#include <QImage>
#include <QPixmap>
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
    void resizeEvent(QResizeEvent* event) override;

private:
    [[nodiscard]] const QPixmap& picture();

    TextLabel* emojiLabel;
    QString shownFile;
    QImage decoded; ///< until it is composed; the plate itself is larger than what is shown of it
    QPixmap composed;
    QColor composedField;
};

/// How large a picture is made and on what it lies.
struct PictureFrame {
    QSize size; ///< in logical pixels
    qreal devicePixelRatio = 1;
    QColor field;
};

/// `plate` scaled to fit the frame and multiplied with its field.
[[nodiscard]] QImage composedPicture(const QImage& plate, const PictureFrame& frame);

} // namespace tambrelle
