#include "ui/panel/PictureView.h"

#include "ui/Ink.h"
#include "ui/TextLabel.h"
#include "ui/panel/PanelMetrics.h"

#include <QPainter>
#include <QVBoxLayout>

namespace tambrelle {

PictureView::PictureView(QWidget* parent)
    : QWidget(parent), emojiLabel(new TextLabel(TypeScale::pictureEmoji, Ink::primary)) {
    setFixedHeight(PanelMetrics::pictureHeight);
    auto* center = new QVBoxLayout(this);
    center->setContentsMargins({});
    center->addWidget(emojiLabel, 0, Qt::AlignCenter);
}

void PictureView::present(const std::optional<QString>& file, const QString& emoji) {
    plate.setFile(file.value_or(QString()));
    // A large emoji is dear to measure.
    if (plate.isEmpty())
        emojiLabel->setText(emoji);
    emojiLabel->setVisible(plate.isEmpty());
    update();
}

void PictureView::paintEvent(QPaintEvent*) {
    constexpr double radius = PanelMetrics::pictureCornerRadius;
    constexpr double inset = PanelMetrics::pictureOutlineWidth / 2.0;
    QPainter painter(this);
    plate.draw(painter, *this, radius);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(color(palette(), Ink::pictureOutline), PanelMetrics::pictureOutlineWidth));
    painter.drawRoundedRect(QRectF(rect()).adjusted(inset, inset, -inset, -inset), radius - inset,
                            radius - inset);
}

} // namespace tambrelle
