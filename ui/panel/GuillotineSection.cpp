#include "ui/panel/GuillotineSection.h"

#include "platform/ResourceBundle.h"
#include "ui/Spacing.h"
#include "ui/TextLabel.h"
#include "ui/panel/FittedImage.h"
#include "ui/panel/PanelMetrics.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

namespace tambrelle {

GuillotineSection::GuillotineSection(const ResourceBundle& resources, QWidget* parent)
    : QWidget(parent), daysSince(new TextLabel(TypeScale::dayCount, Ink::red)) {
    auto* image =
        new FittedImage(resources.file(QStringLiteral("plates/Guillotine.png")).value_or(QString()));
    image->setFixedSize(PanelMetrics::guillotineSide, PanelMetrics::guillotineSide);
    auto* heading = new TextLabel(TypeScale::caption, Ink::secondary);
    heading->setText(QStringLiteral("Days Since Last Guillotine"));
    auto* date = new TextLabel(TypeScale::smallCaption, Ink::tertiary);
    date->setText(QStringLiteral("Sep 10, 1977"));
    auto* place = new TextLabel(TypeScale::smallCaption, Ink::quaternary);
    place->setText(QStringLiteral("Marseille"));

    auto* count = new QVBoxLayout;
    count->setSpacing(Spacing::tight);
    count->addWidget(heading);
    count->addWidget(daysSince);
    auto* last = new QVBoxLayout;
    last->setSpacing(Spacing::tight);
    last->addStretch();
    last->addWidget(date, 0, Qt::AlignTrailing);
    last->addWidget(place, 0, Qt::AlignTrailing);
    last->addStretch();
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(Spacing::standard, Spacing::standard, Spacing::standard, Spacing::standard);
    row->setSpacing(Spacing::regular);
    row->addWidget(image, 0, Qt::AlignVCenter);
    row->addLayout(count, 1);
    row->addLayout(last);
}

void GuillotineSection::present(const GuillotineContent& content) {
    daysSince->setText(content.daysSince);
}

} // namespace tambrelle
