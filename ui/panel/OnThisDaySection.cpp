#include "ui/panel/OnThisDaySection.h"

#include "ui/Spacing.h"
#include "ui/TextLabel.h"
#include "ui/panel/EventRow.h"

#include <QVBoxLayout>

namespace tambrelle {

OnThisDaySection::OnThisDaySection(QWidget* parent) : QWidget(parent), rows{} {
    auto* heading = new TextLabel(TypeScale::sectionHeading, Ink::secondary);
    heading->setText(QStringLiteral("ON THIS DAY"));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(Spacing::standard, Spacing::standard, Spacing::standard, Spacing::standard);
    column->setSpacing(Spacing::regular);
    column->addWidget(heading);
    for (EventRow*& row : rows) {
        row = new EventRow;
        row->hide();
        column->addWidget(row);
    }
}

void OnThisDaySection::present(const OnThisDayContent& content) {
    for (std::size_t index = 0; index < rows.size(); ++index) {
        if (index < content.events.size())
            rows[index]->present(content.events[index]);
        rows[index]->setVisible(index < content.events.size());
    }
}

} // namespace tambrelle
