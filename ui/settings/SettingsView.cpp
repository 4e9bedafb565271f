#include "ui/settings/SettingsView.h"

#include "app/CalendarManager.h"
#include "app/NotificationManager.h"
#include "app/SoundManager.h"
#include "core/GregorianCalendar.h"
#include "platform/Clock.h"
#include "platform/LoginItem.h"
#include "ui/CivilTexts.h"
#include "ui/Spacing.h"
#include "ui/TypeScale.h"
#include "ui/settings/FormMetrics.h"
#include "ui/settings/FormSection.h"
#include "ui/settings/ReminderTime.h"
#include "ui/settings/TimePicker.h"
#include "ui/settings/ToggleRow.h"

#include <QComboBox>
#include <QKeyEvent>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace tambrelle {

namespace {

QString label(AppTheme theme) {
    switch (theme) {
    case AppTheme::light:
        return QStringLiteral("Light parchment");
    case AppTheme::sepiaNight:
        return QStringLiteral("Sepia night");
    }
    return {};
}

QString label(MenuBarFormat format) {
    switch (format) {
    case MenuBarFormat::dateAndTime:
        return QStringLiteral("Date & decimal time");
    case MenuBarFormat::date:
        return QStringLiteral("Date only");
    case MenuBarFormat::decimalTime:
        return QStringLiteral("Decimal time only");
    case MenuBarFormat::dayNumber:
        return QStringLiteral("Day number only");
    }
    return {};
}

/// A picker with an entry for each case, in the order of declaration.
template <class E>
QComboBox* picker() {
    auto* box = new QComboBox;
    for (const E value : allCases<E>())
        box->addItem(label(value), static_cast<int>(value));
    return box;
}

template <class E>
E chosen(const QComboBox& box) {
    return static_cast<E>(box.currentData().toInt());
}

void choose(QComboBox& box, int value) {
    const QSignalBlocker blocker(box);
    box.setCurrentIndex(box.findData(value));
}

} // namespace

SettingsView::SettingsView(const SettingsServices& services, QWidget* parent)
    : QWidget(parent, Qt::Dialog | Qt::WindowTitleHint | Qt::WindowCloseButtonHint),
      services(services),
      refresher([this] { refresh(); }),
      launchAtLogin(new ToggleRow(QStringLiteral("Launch at login"))),
      theme(picker<AppTheme>()),
      format(picker<MenuBarFormat>()),
      reminds(new ToggleRow(QStringLiteral("Notify me each morning"))),
      reminder(new TimePicker),
      chimes(new ToggleRow(QStringLiteral("Hourly chimes (La Marseillaise)"))) {
    setWindowTitle(QStringLiteral("Tambrelle"));
    reminder->setDisplayFormat(timePattern(QLocale()));
    launchAtLogin->showState(services.loginItem.isEnabled());
    layOutForm();
    connectControls();
    refresher.observe(services.manager);
    refresher.observe(services.notifications);
    refresher.observe(services.sound);
    refresh();
}

void SettingsView::layOutForm() {
    auto* general = new FormSection(QStringLiteral("General"));
    general->addRow(launchAtLogin);
    auto* appearance = new FormSection(QStringLiteral("Appearance"));
    appearance->addRow(QStringLiteral("Theme"), theme);
    auto* menuBar = new FormSection(QStringLiteral("Menu bar"));
    menuBar->addRow(QStringLiteral("Show"), format);
    auto* dailyReminder = new FormSection(QStringLiteral("Daily reminder"));
    dailyReminder->addRow(reminds);
    reminderRow = dailyReminder->addRow(QStringLiteral("Time"), reminder);
    auto* sound = new FormSection(QStringLiteral("Sound"));
    sound->addRow(chimes);

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(Spacing::standard, Spacing::standard, Spacing::standard, Spacing::standard);
    column->setSpacing(FormMetrics::betweenSections);
    // The window is as tall as its content, always.
    column->setSizeConstraint(QLayout::SetFixedSize);
    for (FormSection* section : {general, appearance, menuBar, dailyReminder, sound}) {
        section->setFixedWidth(scaledByText(FormMetrics::width));
        column->addWidget(section);
    }
}

void SettingsView::connectControls() {
    connect(launchAtLogin, &ToggleRow::toggled, this, &SettingsView::setLaunchAtLogin);
    connect(theme, &QComboBox::currentIndexChanged, this,
            [this] { services.manager.setTheme(chosen<AppTheme>(*theme)); });
    connect(format, &QComboBox::currentIndexChanged, this,
            [this] { services.manager.setMenuBarFormat(chosen<MenuBarFormat>(*format)); });
    connect(reminds, &ToggleRow::toggled, this,
            [this](bool checked) { services.notifications.setEnabled(checked); });
    connect(reminder, &QTimeEdit::timeChanged, this, &SettingsView::setReminderTime);
    connect(chimes, &ToggleRow::toggled, this,
            [this](bool checked) { services.sound.setSoundEnabled(checked); });
}

SettingsView::Shown SettingsView::stored() const {
    const NotificationManager& notifications = services.notifications;
    const auto reminder = GregorianCalendar::components(
        reminderTime(services.clock.now(), notifications.hour(), notifications.minute()));
    return {
        .theme = services.manager.theme(),
        .format = services.manager.menuBarFormat(),
        .reminds = notifications.enabled(),
        .reminder = reminder ? QTime(static_cast<int>(reminder->hour), static_cast<int>(reminder->minute))
                             : QTime(0, 0),
        .chimes = services.sound.soundEnabled(),
    };
}

void SettingsView::refresh() {
    const Shown now = stored();
    if (now == shown)
        return;
    shown = now;
    choose(*theme, static_cast<int>(now.theme));
    choose(*format, static_cast<int>(now.format));
    reminds->showState(now.reminds);
    reminderRow->setVisible(now.reminds);
    {
        const QSignalBlocker blocker(reminder);
        reminder->setTime(now.reminder);
    }
    chimes->showState(now.chimes);
}

void SettingsView::setLaunchAtLogin(bool enabled) {
    if (!services.loginItem.setEnabled(enabled))
        launchAtLogin->showState(services.loginItem.isEnabled());
}

void SettingsView::setReminderTime(QTime time) {
    services.notifications.setHour(time.hour());
    services.notifications.setMinute(time.minute());
}

void SettingsView::present() {
    show();
    raise();
    activateWindow();
}

void SettingsView::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Cancel) || event->matches(QKeySequence::Close))
        close();
    else
        QWidget::keyPressEvent(event);
}

} // namespace tambrelle
