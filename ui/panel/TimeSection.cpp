#include "ui/panel/TimeSection.h"

#include "ui/Spacing.h"
#include "ui/TextLabel.h"
#include "ui/panel/Divider.h"
#include "ui/panel/PanelMetrics.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

namespace tambrelle {

namespace {

QVBoxLayout* clock(TextLabel* time, TextLabel* name) {
    auto* column = new QVBoxLayout;
    column->setSpacing(Spacing::close);
    column->addStretch();
    column->addWidget(time, 0, Qt::AlignHCenter);
    column->addWidget(name, 0, Qt::AlignHCenter);
    column->addStretch();
    return column;
}

} // namespace

TimeSection::TimeSection(QWidget* parent)
    : QWidget(parent),
      decimalTime(new TextLabel(TypeScale::decimalTime, Ink::primary)),
      standardTime(new TextLabel(TypeScale::standardTime, Ink::secondary)) {
    auto* decimalName = new TextLabel(TypeScale::smallCaption, Ink::secondary);
    decimalName->setText(QStringLiteral("Decimal Time"));
    auto* standardName = new TextLabel(TypeScale::smallCaption, Ink::tertiary);
    standardName->setText(QStringLiteral("Standard Time"));
    auto* between = new Divider(Qt::Vertical);
    between->setFixedHeight(PanelMetrics::clockDividerHeight);

    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(Spacing::standard, Spacing::standard, Spacing::standard, Spacing::standard);
    row->setSpacing(PanelMetrics::betweenClocks);
    row->setAlignment(Qt::AlignHCenter);
    row->addLayout(clock(decimalTime, decimalName));
    row->addWidget(between, 0, Qt::AlignVCenter);
    row->addLayout(clock(standardTime, standardName));
}

void TimeSection::present(const TimeContent& content) {
    decimalTime->setText(content.decimalTime);
    standardTime->setText(content.standardTime);
}

} // namespace tambrelle
