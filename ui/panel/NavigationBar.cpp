#include "ui/panel/NavigationBar.h"

#include "ui/Spacing.h"
#include "ui/SymbolButton.h"
#include "ui/TextLabel.h"
#include "ui/panel/PanelMetrics.h"

#include <QHBoxLayout>

namespace tambrelle {

namespace {

SymbolButton* stepButton(const QString& symbol, const QString& name, QWidget* parent) {
    auto* button = new SymbolButton(symbol, TypeScale::navigation, Ink::secondary, parent);
    button->setToolTip(name);
    button->setAccessibleName(name);
    return button;
}

} // namespace

NavigationBar::NavigationBar(QWidget* parent)
    : QWidget(parent),
      today(new TextLabel(TypeScale::today, Ink::secondary, {}, this)),
      backToToday(new SymbolButton(QStringLiteral("arrow.uturn.left"), TypeScale::backToToday, Ink::secondary,
                                   this)) {
    auto* previous = stepButton(QStringLiteral("chevron.left"), QStringLiteral("Previous day"), this);
    auto* next = stepButton(QStringLiteral("chevron.right"), QStringLiteral("Next day"), this);
    today->setText(QStringLiteral("AUJOURD'HUI"));
    backToToday->setText(QStringLiteral("Aujourd'hui"));
    backToToday->setToolTip(QStringLiteral("Return to today"));
    backToToday->hide();

    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(Spacing::standard, PanelMetrics::navigationTop, Spacing::standard, 0);
    row->setSpacing(Spacing::regular);
    row->addWidget(previous);
    row->addStretch();
    row->addWidget(today);
    row->addWidget(backToToday);
    row->addStretch();
    row->addWidget(next);
    QWidget::setTabOrder(previous, backToToday);
    QWidget::setTabOrder(backToToday, next);

    connect(previous, &SymbolButton::clicked, this, &NavigationBar::previousDayRequested);
    connect(next, &SymbolButton::clicked, this, &NavigationBar::nextDayRequested);
    connect(backToToday, &SymbolButton::clicked, this, &NavigationBar::todayRequested);
}

void NavigationBar::present(bool onToday) {
    today->setVisible(onToday);
    backToToday->setVisible(!onToday);
}

} // namespace tambrelle
