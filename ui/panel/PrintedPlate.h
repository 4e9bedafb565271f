#pragma once

#include <QColor>
#include <QImage>
#include <QPixmap>
#include <QSize>
#include <QString>

#include <optional>

class QPainter;
class QWidget;

namespace tambrelle {

/// How large a picture is made and on what it lies.
struct PictureFrame {
    QSize size; ///< in logical pixels
    qreal devicePixelRatio = 1;
    QColor field;

    bool operator==(const PictureFrame&) const = default;
};

/// `plate` scaled to fit the frame, in its middle, and multiplied with the field; the field alone without a
/// plate.
[[nodiscard]] QImage composedPicture(const QImage& plate, const PictureFrame& frame);

/// A plate's file and the print last made of it. The file is read once for each print: the plate itself is
/// larger than what is shown of it, and not kept.
class PrintedPlate final {
public:
    /// Takes up another file, empty for none. One that is taken up already is not read again.
    void setFile(const QString& file);

    /// Whether there is no file, or none that could be read.
    [[nodiscard]] bool isEmpty() const { return file.isEmpty(); }

    /// The print of the file, of which there is one, for `frame`; made only when the frame or the file is not
    /// that of the last one. Where the file has been lost meanwhile it is the field alone.
    [[nodiscard]] const QPixmap& printed(const PictureFrame& frame);

    /// Draws the print over the whole of `widget`, on the field of its theme, with round corners; nothing
    /// when the plate is empty.
    void draw(QPainter& painter, const QWidget& widget, double cornerRadius);

private:
    QString file;
    QImage decoded; ///< until it is printed
    QPixmap print;
    std::optional<PictureFrame> printedFor;
};

} // namespace tambrelle
