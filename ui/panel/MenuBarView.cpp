#include "ui/panel/MenuBarView.h"

#include "app/CalendarManager.h"
#include "app/SoundManager.h"
#include "platform/Clock.h"
#include "platform/ContrastPreference.h"
#include "ui/FocusRing.h"
#include "ui/Ink.h"
#include "ui/Spacing.h"
#include "ui/TypeScale.h"
#include "ui/panel/DailyItemSection.h"
#include "ui/panel/Divider.h"
#include "ui/panel/FooterSection.h"
#include "ui/panel/GuillotineSection.h"
#include "ui/panel/HeaderSection.h"
#include "ui/panel/NavigationBar.h"
#include "ui/panel/OnThisDaySection.h"
#include "ui/panel/PanelMetrics.h"
#include "ui/panel/TimeSection.h"

#include <QClipboard>
#include <QEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QVBoxLayout>

#include <algorithm>

namespace tambrelle {

namespace {

bool differOnlyInTime(const PanelSnapshot& before, PanelSnapshot after) {
    after.time = before.time;
    return after == before;
}

/// Lays out from the innermost widgets outwards, so that a height asked for now is that of the content shown
/// now. Left to the event loop, it would come later.
void layOut(const QWidget& widget) {
    for (const QWidget* child : widget.findChildren<QWidget*>(Qt::FindDirectChildrenOnly))
        layOut(*child);
    if (QLayout* layout = widget.layout())
        layout->activate();
}

} // namespace

MenuBarView::MenuBarView(const PanelServices& services, QWidget* parent)
    : QWidget(parent),
      services(services),
      refresher([this] { refresh(); }),
      feedback(services.later),
      navigation(new NavigationBar),
      header(new HeaderSection),
      time(new TimeSection),
      dailyItem(new DailyItemSection(services.resources)),
      afterDailyItem(new Divider(Qt::Horizontal)),
      onThisDay(new OnThisDaySection),
      afterOnThisDay(new Divider(Qt::Horizontal)),
      guillotine(new GuillotineSection(services.resources)),
      footer(new FooterSection) {
    setAutoFillBackground(true);
    setFocusPolicy(Qt::StrongFocus);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->setSpacing(Spacing::none);
    for (QWidget* part : std::initializer_list<QWidget*>{
             navigation, header, new Divider(Qt::Horizontal), time, new Divider(Qt::Horizontal), dailyItem,
             afterDailyItem, onThisDay, afterOnThisDay, guillotine, new Divider(Qt::Horizontal), footer})
        column->addWidget(part);
    focusRing = new FocusRing(this);

    connectControls();
    refresher.setPaused(true);
    refresher.observe(services.manager);
    refresher.observe(services.sound);
    refresh();
    connect(&services.contrast, &ContrastPreference::changed, this, &MenuBarView::applyInks);
}

void MenuBarView::connectControls() {
    CalendarManager& manager = services.manager;
    connect(navigation, &NavigationBar::previousDayRequested, &manager, &CalendarManager::goToPreviousDay);
    connect(navigation, &NavigationBar::nextDayRequested, &manager, &CalendarManager::goToNextDay);
    connect(navigation, &NavigationBar::todayRequested, &manager, &CalendarManager::goToToday);
    connect(footer, &FooterSection::chimeClicked, this, &MenuBarView::chime);
    connect(footer, &FooterSection::copyRequested, this, &MenuBarView::copyToClipboard);
    connect(footer, &FooterSection::settingsRequested, this, &MenuBarView::settingsRequested);
    connect(footer, &FooterSection::quitRequested, this, &MenuBarView::quitRequested);
    connect(&feedback, &CopyFeedback::changed, footer, &FooterSection::showCopied);
}

void MenuBarView::applyInks() {
    setPalette(panelPalette(shown->theme, services.contrast.contrast()));
}

void MenuBarView::refresh() {
    present(
        panelSnapshot(services.manager, services.sound, {.now = services.clock.now(), .locale = QLocale()}));
}

void MenuBarView::present(const PanelSnapshot& snapshot) {
    if (snapshot == shown)
        return;
    if (!shown || shown->theme != snapshot.theme)
        setPalette(panelPalette(snapshot.theme, services.contrast.contrast()));
    navigation->present(snapshot.onToday);
    header->present(snapshot.header);
    time->present(snapshot.time);
    if (snapshot.dailyItem)
        dailyItem->present(*snapshot.dailyItem);
    dailyItem->setVisible(snapshot.dailyItem.has_value());
    afterDailyItem->setVisible(snapshot.dailyItem.has_value());
    const bool hasEvents = !snapshot.onThisDay.events.empty();
    if (!shown || shown->onThisDay != snapshot.onThisDay)
        onThisDay->present(snapshot.onThisDay);
    onThisDay->setVisible(hasEvents);
    afterOnThisDay->setVisible(hasEvents);
    guillotine->present(snapshot.guillotine);
    footer->present(snapshot.footer);
    const bool sameSize = shown && differOnlyInTime(*shown, snapshot);
    shown = snapshot;
    if (!sameSize)
        fitHeight();
}

QSize MenuBarView::sizeHint() const {
    const int width = scaledByText(PanelMetrics::width);
    return {width, layout()->heightForWidth(width)};
}

int MenuBarView::leastHeight() const {
    const bool pictured = !dailyItem->isHidden();
    return sizeHint().height() -
           (pictured ? dailyItem->pictureHeight() - PanelMetrics::leastPictureHeight : 0);
}

void MenuBarView::setRoom(int height) {
    if (height == room)
        return;
    room = height;
    fitHeight();
}

void MenuBarView::fitHeight() {
    layOut(*this);
    const int before = dailyItem->pictureHeight();
    const int height = std::clamp(before + room - sizeHint().height(), PanelMetrics::leastPictureHeight,
                                  PanelMetrics::pictureHeight);
    if (height != before && !dailyItem->isHidden()) {
        dailyItem->setPictureHeight(height);
        layOut(*this);
    }
    const QSize wanted = sizeHint();
    if (wanted == size())
        return;
    setFixedSize(wanted);
    emit heightChanged();
}

void MenuBarView::copyToClipboard() {
    // In the place of all that was there.
    QGuiApplication::clipboard()->setText(services.manager.shareableText());
    feedback.copied();
}

void MenuBarView::chime(bool test) {
    if (test)
        services.sound.playHourChime();
    else
        services.sound.setSoundEnabled(!services.sound.soundEnabled());
}

void MenuBarView::keyPressEvent(QKeyEvent* event) {
    // Arrow keys of a keypad count as the others do.
    const bool plain = (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    if (plain && event->key() == Qt::Key_Left)
        services.manager.goToPreviousDay();
    else if (plain && event->key() == Qt::Key_Right)
        services.manager.goToNextDay();
    else if (plain && event->key() == Qt::Key_T)
        services.manager.goToToday();
    else if (event->matches(QKeySequence::Copy))
        copyToClipboard();
    else
        QWidget::keyPressEvent(event);
}

void MenuBarView::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    refresher.setPaused(false);
}

void MenuBarView::hideEvent(QHideEvent* event) {
    QWidget::hideEvent(event);
    refresher.setPaused(true);
}

} // namespace tambrelle
