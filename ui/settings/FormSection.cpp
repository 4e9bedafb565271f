#include "ui/settings/FormSection.h"

#include "ui/Spacing.h"
#include "ui/settings/FormMetrics.h"
#include "ui/settings/ToggleRow.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QVBoxLayout>

namespace tambrelle {

namespace {

QLabel* titleLabel(const QString& title) {
    auto* label = new QLabel(title);
    label->setTextFormat(Qt::PlainText);
    label->setContentsMargins(FormMetrics::titleInset, 0, FormMetrics::titleInset, 0);
    QFont font = label->font();
    font.setWeight(QFont::DemiBold);
    label->setFont(font);
    return label;
}

} // namespace

FormSection::FormSection(const QString& title, QWidget* parent)
    : QWidget(parent), box(new QWidget), rows(new QVBoxLayout(box)) {
    rows->setContentsMargins({});
    rows->setSpacing(Spacing::none);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->setSpacing(Spacing::close);
    column->addWidget(titleLabel(title));
    column->addWidget(box);
}

void FormSection::addRow(ToggleRow* row) {
    addPadded(row, FormMetrics::focusOutset);
}

void FormSection::addPadded(QWidget* row, int ownPadding) {
    constexpr int x = FormMetrics::rowPaddingX;
    constexpr int y = FormMetrics::rowPaddingY;
    auto* padded = new QWidget;
    auto* layout = new QHBoxLayout(padded);
    layout->setContentsMargins(x - ownPadding, y - ownPadding, x - ownPadding, y - ownPadding);
    layout->addWidget(row);
    padded->setMinimumHeight(FormMetrics::rowHeight);
    rows->addWidget(padded);
    rowWidgets.push_back(padded);
}

QWidget* FormSection::addRow(const QString& label, QWidget* control) {
    control->setAccessibleName(label);
    auto* row = new QWidget;
    auto* words = new QLabel(label);
    words->setBuddy(control);
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins({});
    layout->addWidget(words);
    layout->addStretch();
    layout->addWidget(control);
    addPadded(row, 0);
    return rowWidgets.back();
}

QColor FormSection::ground() const {
    const QColor base = palette().color(QPalette::Base);
    const QColor window = palette().color(QPalette::Window);
    if (base.lightnessF() >= window.lightnessF())
        return base;
    // A dark desktop sets its lists darker than its windows; a box of a form stands out by being lighter.
    QColor tint = palette().color(QPalette::WindowText);
    tint.setAlphaF(static_cast<float>(FormMetrics::boxTint));
    return tint;
}

QColor FormSection::hairline() const {
    QColor color = palette().color(QPalette::WindowText);
    color.setAlphaF(static_cast<float>(FormMetrics::hairlineOpacity));
    return color;
}

void FormSection::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(hairline(), FormMetrics::hairline));
    painter.setBrush(ground());
    constexpr double inset = FormMetrics::hairline / 2.0;
    painter.drawRoundedRect(QRectF(box->geometry()).adjusted(inset, inset, -inset, -inset),
                            FormMetrics::cornerRadius, FormMetrics::cornerRadius);
    bool first = true;
    for (const QWidget* row : rowWidgets) {
        if (!row->isVisibleTo(box))
            continue;
        if (!first)
            painter.fillRect(QRect(box->x() + FormMetrics::rowPaddingX, box->y() + row->y(),
                                   box->width() - 2 * FormMetrics::rowPaddingX, FormMetrics::hairline),
                             hairline());
        first = false;
    }
}

} // namespace tambrelle
