#include "ui/panel/HeaderSection.h"

#include "ui/Spacing.h"
#include "ui/TextLabel.h"
#include "ui/WrappedToolTip.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

namespace tambrelle {

HeaderSection::HeaderSection(QWidget* parent)
    : QWidget(parent),
      monthName(new TextLabel(TypeScale::monthName, Ink::primary, TextFit::shrunk())),
      monthMeaning(new TextLabel(TypeScale::monthMeaning, Ink::secondary, TextFit::wrapped())),
      monthEmoji(new TextLabel(TypeScale::monthEmoji, Ink::primary)),
      formattedDate(new TextLabel(TypeScale::fullDate, Ink::primary, TextFit::wrapped())),
      dayName(new TextLabel(TypeScale::body, Ink::primary)),
      placeInDecade(new TextLabel(TypeScale::subheadline, Ink::tertiary)),
      civilDate(new TextLabel(TypeScale::caption, Ink::tertiary)) {
    auto* decade = new QWidget;
    decade->setToolTip(QStringLiteral("The Revolutionary calendar replaced the 7-day week with a 10-day "
                                      "'décade'. Workers got 1 rest day per 10 instead of per 7."));
    decade->installEventFilter(new WrappedToolTip(decade));
    auto* bullet = new TextLabel(TypeScale::body, Ink::quaternary);
    bullet->setText(QStringLiteral("•"));
    auto* gregorian = new TextLabel(TypeScale::smallCaption, Ink::quaternary);
    gregorian->setText(QStringLiteral("Gregorian"));

    auto* decadeRow = new QHBoxLayout(decade);
    decadeRow->setContentsMargins({});
    decadeRow->setSpacing(Spacing::close);
    decadeRow->addWidget(dayName, 0, Qt::AlignVCenter);
    decadeRow->addWidget(bullet, 0, Qt::AlignVCenter);
    decadeRow->addWidget(placeInDecade, 1, Qt::AlignVCenter);

    auto* month = new QVBoxLayout;
    month->setSpacing(Spacing::tight);
    month->addWidget(monthName);
    month->addWidget(monthMeaning);
    auto* upper = new QHBoxLayout;
    upper->setSpacing(Spacing::regular);
    upper->addLayout(month, 1);
    upper->addWidget(monthEmoji, 0, Qt::AlignVCenter);

    auto* republican = new QVBoxLayout;
    republican->setSpacing(Spacing::close);
    republican->addWidget(formattedDate);
    republican->addWidget(decade);
    auto* civil = new QVBoxLayout;
    civil->setSpacing(Spacing::close);
    civil->addStretch();
    civil->addWidget(civilDate, 0, Qt::AlignTrailing);
    civil->addWidget(gregorian, 0, Qt::AlignTrailing);
    civil->addStretch();
    auto* lower = new QHBoxLayout;
    lower->setSpacing(Spacing::regular);
    lower->addLayout(republican, 1);
    lower->addLayout(civil);

    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(Spacing::standard, Spacing::standard, Spacing::standard, Spacing::standard);
    rows->setSpacing(Spacing::regular);
    rows->addLayout(upper);
    rows->addLayout(lower);
}

void HeaderSection::present(const HeaderContent& content) {
    monthName->setText(content.monthName);
    monthMeaning->setText(content.monthMeaning);
    monthEmoji->setText(content.monthEmoji);
    formattedDate->setText(content.formattedDate);
    dayName->setText(content.dayName);
    placeInDecade->setText(content.placeInDecade);
    civilDate->setText(content.civilDate);
}

} // namespace tambrelle
