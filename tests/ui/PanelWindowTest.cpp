#include "ui/panel/PanelWindow.h"

#include "tests/ui/PanelTest.h"

#include <QScreen>
#include <QWheelEvent>

namespace tambrelle {
namespace {

class PanelWindowTest : public test::PanelTest {
protected:
    void make(const CivilComponents& now) {
        state = std::make_unique<test::StateOnFakes>(now);
        view = new MenuBarView(state->panelServices());
        window = std::make_unique<PanelWindow>(view, kind);
    }
    void toggle(QPoint click) {
        window->toggle(click);
        test::runQueued();
    }

    PopoverKind kind = PopoverKind::grabbing;
    MenuBarView* view = nullptr;
    std::unique_ptr<PanelWindow> window;
};

class StandingPanelWindowTest : public PanelWindowTest {
protected:
    StandingPanelWindowTest() { kind = PopoverKind::standing; }
};

const QRect& screen() {
    static const QRect available = QGuiApplication::primaryScreen()->availableGeometry();
    return available;
}

TEST_F(PanelWindowTest, IsAPopover) {
    make(test::anItemAndNoEvent);
    EXPECT_EQ(window->windowType(), Qt::Popup);
    EXPECT_TRUE(window->testAttribute(Qt::WA_NoMouseReplay))
        << "else the click that closes it opens it again";
}

TEST_F(StandingPanelWindowTest, IsAWindowOfOneSizeThatOpensAndCloses) {
    make(test::anItemAndNoEvent);
    EXPECT_EQ(window->windowType(), Qt::Tool);
    toggle({400, 5});
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(window->minimumSize(), window->maximumSize());
    toggle({400, 5});
    EXPECT_FALSE(window->isVisible());
    toggle({400, 5});
    EXPECT_TRUE(window->isVisible());
    QTest::keyClick(view, Qt::Key_Escape);
    EXPECT_FALSE(window->isVisible());
}

TEST_F(StandingPanelWindowTest, ClosesWhenAnotherTakesTheFocusAndStaysClosedForThatClick) {
    make(test::anItemAndNoEvent);
    toggle({400, 5});
    ASSERT_TRUE(test::waitUntil([this] { return window->isActiveWindow(); }));
    QWidget other;
    other.show();
    other.activateWindow();
    ASSERT_TRUE(test::waitUntil([this] { return !window->isVisible(); }));
    toggle({400, 5});
    EXPECT_FALSE(window->isVisible())
        << "the click on the item that took the focus is the one that closed it";
}

TEST_F(PanelWindowTest, OpensAndCloses) {
    make(test::anItemAndNoEvent);
    toggle({400, 5});
    EXPECT_TRUE(window->isVisible());
    EXPECT_TRUE(view->isVisible());
    toggle({400, 5});
    EXPECT_FALSE(window->isVisible());
    toggle({400, 5});
    QTest::keyClick(view, Qt::Key_Escape);
    EXPECT_FALSE(window->isVisible());
}

TEST_F(PanelWindowTest, ShowsThePresentMomentWhenItOpensAgain) {
    make(test::anItemAndNoEvent);
    toggle({400, 5});
    toggle({400, 5});
    state->platform.setTime(test::local(test::anItemAndAnEvent));
    state->platform.timer.fire();
    test::runQueued();
    window->toggle({400, 5});
    QStringList texts;
    for (const TextLabel* label : view->findChildren<TextLabel*>())
        texts.append(label->text());
    EXPECT_TRUE(texts.contains("9 Thermidor an CCXXXIII")) << "before the event loop turns";
}

TEST_F(PanelWindowTest, OpeningMovesNeitherTheDayNorAnything) {
    make(test::anItemAndNoEvent);
    state->manager.goToPreviousDay();
    toggle({400, 5});
    EXPECT_EQ(state->manager.dayOffset(), -1);
    toggle({400, 5});
    EXPECT_EQ(state->manager.dayOffset(), -1);
}

TEST_F(PanelWindowTest, IsWhollyOnTheScreenAtEveryEdge) {
    make(test::anItemAndAnEvent);
    for (const QPoint click : {screen().topLeft(), screen().topRight(), screen().bottomLeft(),
                               screen().bottomRight(), screen().center()}) {
        toggle(click);
        EXPECT_TRUE(screen().contains(window->geometry())) << click.x() << "," << click.y();
        toggle(click);
    }
}

TEST_F(PanelWindowTest, KeepsItsPictureWhereItCoversTheClickInAnyCase) {
    make(test::anItemAndNoEvent);
    toggle(screen().topLeft());
    const int height = window->height();
    ASSERT_LT(height, screen().height());
    toggle(screen().topLeft());
    toggle(screen().center());
    EXPECT_EQ(window->height(), height);
}

TEST_F(PanelWindowTest, ScrollsWhereTheScreenIsTooLow) {
    make(test::anItemAndAnEvent);
    PanelSnapshot tall =
        panelSnapshot(state->manager, state->sound, {state->platform.clock.now(), QLocale()});
    toggle({400, 5});
    tall.dailyItem->caption = QStringLiteral("A caption of very many words. ").repeated(30);
    view->present(tall);
    ASSERT_GT(view->height(), screen().height());
    EXPECT_EQ(window->height(), screen().height());
    EXPECT_EQ(view->y(), 0);
    const auto roll = [this](int units) {
        QWheelEvent event({100, 100}, window->mapToGlobal(QPointF(100, 100)), {}, {0, units}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(window.get(), &event);
    };
    roll(-12000);
    EXPECT_EQ(view->y(), screen().height() - view->height()) << "no further than the end";
    roll(12000);
    EXPECT_EQ(view->y(), 0);
    for (int i = 0; i < 6; ++i)
        QTest::keyClick(window->focusWidget(), Qt::Key_Tab);
    const auto* quit = qobject_cast<SymbolButton*>(window->focusWidget());
    ASSERT_NE(quit, nullptr);
    EXPECT_EQ(quit->accessibleName(), "Quit");
    EXPECT_TRUE(window->rect().contains(QRect(quit->mapTo(window.get(), QPoint(0, 0)), quit->size())))
        << "a control that has the focus is in view";
}

TEST_F(PanelWindowTest, KeepsItsTopAsTheDaysPassUnderABarAtTheBottom) {
    make(test::anItemAndNoEvent);
    toggle(screen().bottomRight());
    const int top = window->y();
    for (const CivilComponents& day : {test::aComplementaryDay, test::anItemAndNoEvent}) {
        const int height = window->height();
        state->platform.setTime(test::local(day));
        state->platform.timer.fire();
        test::runQueued();
        EXPECT_NE(window->height(), height);
        EXPECT_EQ(window->y(), top);
    }
    toggle(screen().bottomRight());
    toggle(screen().bottomRight());
    EXPECT_EQ(window->y(), top) << "by the click again when it opens again";
}

TEST_F(PanelWindowTest, FollowsItsContentsHeight) {
    make(test::anItemAndNoEvent);
    toggle(screen().bottomRight());
    state->platform.setTime(test::local(test::aComplementaryDay));
    state->platform.timer.fire();
    test::runQueued();
    EXPECT_EQ(window->size(), view->size());
    EXPECT_TRUE(screen().contains(window->geometry()));
}

} // namespace
} // namespace tambrelle
