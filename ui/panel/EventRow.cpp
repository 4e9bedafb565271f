#include "ui/panel/EventRow.h"

#include "ui/Spacing.h"
#include "ui/TextLabel.h"
#include "ui/panel/PanelMetrics.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

namespace tambrelle {

EventRow::EventRow(QWidget* parent)
    : QWidget(parent),
      emoji(new TextLabel(TypeScale::eventEmoji, Ink::primary)),
      title(new TextLabel(TypeScale::subheadlineMedium, Ink::primary, TextFit::wrapped())),
      year(new TextLabel(TypeScale::smallCaption, Ink::tertiary)),
      description(new TextLabel(TypeScale::caption, Ink::secondary,
                                TextFit::wrapped(PanelMetrics::eventDescriptionLines))) {
    auto* heading = new QHBoxLayout;
    heading->setSpacing(Spacing::close);
    heading->addWidget(title);
    heading->addWidget(year, 1);
    auto* words = new QVBoxLayout;
    words->setSpacing(Spacing::tight);
    words->addLayout(heading);
    words->addWidget(description);
    words->addStretch();
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins({});
    row->setSpacing(Spacing::regular);
    row->addWidget(emoji, 0, Qt::AlignTop);
    row->addLayout(words, 1);
}

void EventRow::present(const EventContent& content) {
    emoji->setText(content.emoji);
    title->setText(content.title);
    year->setText(content.year);
    year->setVisible(!content.year.isEmpty());
    description->setText(content.description);
}

} // namespace tambrelle
