#pragma once

#include "tests/support/EventLoop.h"
#include "tests/support/Printers.h"
#include "tests/support/ScopedTimeZone.h"
#include "tests/ui/StateOnFakes.h"
#include "ui/SymbolButton.h"
#include "ui/TextLabel.h"

#include <QApplication>
#include <QLocale>
#include <QTest>

#include <algorithm>
#include <gtest/gtest.h>
#include <memory>

namespace tambrelle::test {

/// Days of the arithmetic calendar.
inline constexpr CivilComponents anItemAndNoEvent{2025, 11, 15, 12, 0, 0};   // 23 Brumaire
inline constexpr CivilComponents anItemAndAnEvent{2025, 7, 29, 7, 5, 0};     // 9 Thermidor
inline constexpr CivilComponents aComplementaryDay{2025, 9, 19, 23, 59, 59}; // La Fête de la Vertu

/// A panel on a state of fakes, in Europe/Paris and American English, shown in memory when asked.
class PanelTest : public ::testing::Test {
protected:
    PanelTest() { QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates)); }
    ~PanelTest() override { QLocale::setDefault(QLocale::c()); }

    MenuBarView& open(const CivilComponents& now) {
        panel.reset();
        state = std::make_unique<StateOnFakes>(now);
        return openOnState();
    }
    /// The panel of a state that the test has made, on a desktop that it has furnished.
    MenuBarView& openOnState() {
        panel = std::make_unique<MenuBarView>(state->panelServices());
        return show();
    }
    MenuBarView& show() {
        panel->show();
        runQueued();
        return *panel;
    }

    /// One firing of the timer, with what it queues.
    void tick(Instant::duration by) {
        state->platform.clock.advance(by);
        state->platform.timer.fire();
        runQueued();
    }

    /// The texts of the labels that show, in the order in which the panel was built.
    [[nodiscard]] QStringList texts() const {
        QStringList texts;
        for (const TextLabel* label : panel->findChildren<TextLabel*>()) {
            if (label->isVisible())
                texts.append(label->text());
        }
        return texts;
    }
    [[nodiscard]] bool shows(const QString& text) const { return texts().contains(text); }
    [[nodiscard]] TextLabel* label(const QString& text) const {
        for (TextLabel* label : panel->findChildren<TextLabel*>()) {
            if (label->isVisible() && label->text() == text)
                return label;
        }
        return nullptr;
    }
    /// The button of this accessible name or text, while it shows.
    [[nodiscard]] SymbolButton* button(const QString& name) const {
        for (SymbolButton* button : panel->findChildren<SymbolButton*>()) {
            if (button->isVisible() && (button->accessibleName() == name || button->text() == name))
                return button;
        }
        return nullptr;
    }
    /// Where a part of the panel lies in it.
    [[nodiscard]] QRect place(const QWidget* part) const {
        return {part->mapTo(panel.get(), QPoint(0, 0)), part->size()};
    }
    void click(const QString& name, Qt::KeyboardModifiers modifiers = {}) {
        SymbolButton* clicked = button(name);
        ASSERT_NE(clicked, nullptr) << name.toStdString();
        QTest::mouseClick(clicked, Qt::LeftButton, modifiers);
        runQueued();
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(panel.get(), key, modifiers);
        runQueued();
    }

    ScopedTimeZone zone{"Europe/Paris"};
    std::unique_ptr<StateOnFakes> state;
    std::unique_ptr<MenuBarView> panel;
};

} // namespace tambrelle::test
