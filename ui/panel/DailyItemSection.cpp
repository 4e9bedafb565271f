#include "ui/panel/DailyItemSection.h"

#include "platform/ResourceBundle.h"
#include "ui/Spacing.h"
#include "ui/TextLabel.h"
#include "ui/panel/PictureView.h"

#include <QVBoxLayout>

namespace tambrelle {

DailyItemSection::DailyItemSection(const ResourceBundle& resources, QWidget* parent)
    : QWidget(parent),
      resources(resources),
      picture(new PictureView),
      frenchName(new TextLabel(TypeScale::secondTitle, Ink::primary, TextFit::wrapped())),
      caption(new TextLabel(TypeScale::caption, Ink::secondary, TextFit::wrapped())) {
    for (TextLabel* label : {frenchName, caption})
        label->setAlignment(Qt::AlignHCenter);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(Spacing::standard, Spacing::standard, Spacing::standard, Spacing::standard);
    column->setSpacing(Spacing::regular);
    column->addWidget(picture);
    column->addWidget(frenchName);
    column->addWidget(caption);
}

void DailyItemSection::present(const DailyItemContent& content) {
    if (content == shown)
        return;
    shown = content;
    picture->present(resources.file(QStringLiteral("plates/%1.png").arg(content.imageName)), content.emoji);
    frenchName->setText(content.frenchName);
    caption->setText(content.caption);
}

int DailyItemSection::pictureHeight() const {
    return picture->minimumHeight();
}

void DailyItemSection::setPictureHeight(int height) {
    picture->setFixedHeight(height);
}

} // namespace tambrelle
