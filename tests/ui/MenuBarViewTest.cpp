#include "tests/ui/PanelTest.h"
#include "tests/ui/PrintedColor.h"
#include "ui/FocusRing.h"
#include "ui/Palette.h"
#include "ui/panel/Divider.h"
#include "ui/panel/FittedImage.h"
#include "ui/panel/FooterSection.h"
#include "ui/panel/PanelMetrics.h"
#include "ui/panel/PictureView.h"

#include <QAccessible>
#include <QClipboard>
#include <QLayout>
#include <QTemporaryDir>

#include <set>

namespace tambrelle {
namespace {

using namespace std::chrono_literals;

class MenuBarViewTest : public test::PanelTest {
protected:
    /// The horizontal hairlines that show, by their height in the panel.
    [[nodiscard]] std::vector<int> dividers() const {
        std::vector<int> heights;
        for (const Divider* divider : panel->findChildren<Divider*>()) {
            if (divider->isVisible() && divider->width() > divider->height()) {
                EXPECT_EQ(divider->width(), panel->width());
                EXPECT_EQ(divider->height(), 1);
                heights.push_back(place(divider).y());
            }
        }
        std::sort(heights.begin(), heights.end());
        return heights;
    }
    void expectNoDoubledDividers() const {
        const std::vector<int> heights = dividers();
        for (std::size_t i = 1; i < heights.size(); ++i)
            EXPECT_GT(heights[i] - heights[i - 1], 20) << "something stands between two dividers";
        EXPECT_LT(heights.back(), panel->height() - 20) << "the footer is last";
    }
    [[nodiscard]] QImage picture() const { return panel->grab().toImage(); }
};

TEST_F(MenuBarViewTest, ADayWithAnItemAndNoEvent) {
    open(test::anItemAndNoEvent);
    for (const char* text : {"AUJOURD'HUI",
                             "BRUMAIRE",
                             "\"Month of Fog\"",
                             "🌫️",
                             "23 Brumaire an CCXXXIV",
                             "Tridi",
                             "•",
                             "3rd of décade",
                             "Nov 15, 2025",
                             "Gregorian",
                             "5:00:00",
                             "Decimal Time",
                             "12:00 PM",
                             "Standard Time",
                             "🌿",
                             "Garance",
                             "Madder • Plant",
                             "Days Since Last Guillotine",
                             "17,598",
                             "Sep 10, 1977",
                             "Marseille",
                             "Liberté, Égalité, Fraternité"})
        EXPECT_TRUE(shows(text)) << text;
    EXPECT_EQ(texts().size(), 22);
    EXPECT_EQ(dividers().size(), 4U);
    expectNoDoubledDividers();
}

TEST_F(MenuBarViewTest, ADayWithAnItemAndAnEvent) {
    open(test::anItemAndAnEvent);
    for (const char* text :
         {"ON THIS DAY", "⚡", "9 Thermidor", "(An II)", "Robespierre arrested - the Terror begins to end"})
        EXPECT_TRUE(shows(text)) << text;
    EXPECT_EQ(dividers().size(), 5U);
    expectNoDoubledDividers();
    const QRect title = place(label("9 Thermidor"));
    EXPECT_EQ(place(label("(An II)")).x(), title.right() + 1 + 4) << "the year follows its title";
}

TEST_F(MenuBarViewTest, AComplementaryDay) {
    open(test::aComplementaryDay);
    EXPECT_TRUE(shows("SANSCULOTTIDES"));
    EXPECT_TRUE(shows("\"Complementary Days\""));
    EXPECT_TRUE(shows("1 Sansculottides an CCXXXIII"));
    EXPECT_TRUE(shows("Fête de la Vertu"));
    EXPECT_FALSE(panel->findChild<PictureView*>()->isVisible());
    for (const QString& text : texts())
        EXPECT_FALSE(text.startsWith("(An")) << "a festival has no year";
    EXPECT_EQ(dividers().size(), 4U);
    expectNoDoubledDividers();
}

TEST_F(MenuBarViewTest, ADayWithNeitherItemNorEvent) {
    open(test::anItemAndNoEvent);
    PanelSnapshot bare =
        panelSnapshot(state->manager, state->sound, {state->platform.clock.now(), QLocale()});
    bare.dailyItem.reset();
    panel->present(bare);
    EXPECT_EQ(dividers().size(), 3U);
    expectNoDoubledDividers();
    EXPECT_FALSE(shows("Garance"));
    EXPECT_FALSE(shows("ON THIS DAY"));
    EXPECT_TRUE(shows("Days Since Last Guillotine"));
}

TEST_F(MenuBarViewTest, ThePictureGivesWayOnALowScreen) {
    open(test::anItemAndAnEvent);
    auto* picture = panel->findChild<PictureView*>();
    ASSERT_EQ(picture->height(), PanelMetrics::pictureHeight);
    const int whole = panel->height();
    panel->setRoom(whole - 40);
    EXPECT_EQ(panel->height(), whole - 40);
    EXPECT_EQ(picture->height(), PanelMetrics::pictureHeight - 40);
    panel->setRoom(200);
    EXPECT_EQ(picture->height(), PanelMetrics::leastPictureHeight);
    EXPECT_GT(panel->height(), 200);
    panel->setRoom(whole + 1);
    EXPECT_EQ(picture->height(), PanelMetrics::pictureHeight);
    EXPECT_EQ(panel->height(), whole);
}

TEST_F(MenuBarViewTest, ShowsThreeEventsAtMostInTheirOrder) {
    open(test::anItemAndNoEvent);
    PanelSnapshot full =
        panelSnapshot(state->manager, state->sound, {state->platform.clock.now(), QLocale()});
    for (const char* title : {"First", "Second", "Third"})
        full.onThisDay.events.push_back({.emoji = "⚡", .title = title, .year = {}, .description = "Words"});
    panel->present(full);
    EXPECT_LT(place(label("First")).y(), place(label("Second")).y());
    EXPECT_LT(place(label("Second")).y(), place(label("Third")).y());
}

TEST_F(MenuBarViewTest, FollowsThePaddingsAndSpacings) {
    open(test::anItemAndAnEvent);
    EXPECT_EQ(panel->width(), 320);
    EXPECT_EQ(panel->height(), panel->sizeHint().height());

    const QRect previous = place(button("Previous day"));
    EXPECT_EQ(previous.x(), 16);
    EXPECT_EQ(previous.y(), 10);
    EXPECT_EQ(place(button("Next day")).right(), 320 - 16 - 1);
    EXPECT_NEAR(place(label("AUJOURD'HUI")).center().x(), 160, 1);

    const QRect month = place(label("THERMIDOR"));
    const QRect meaning = place(label("\"Month of Heat\""));
    EXPECT_EQ(month.x(), 16);
    EXPECT_EQ(meaning.x(), 16);
    EXPECT_EQ(meaning.y() - month.bottom() - 1, 2);
    EXPECT_EQ(place(label("☀️")).right(), 320 - 16 - 1);
    const QRect date = place(label("9 Thermidor an CCXXXIII"));
    EXPECT_EQ(date.y() - meaning.bottom() - 1, 8);
    const QRect dayName = place(label("Nonidi"));
    EXPECT_EQ(dayName.y() - date.bottom() - 1, 4);
    EXPECT_EQ(place(label("•")).x() - dayName.right() - 1, 4);
    EXPECT_EQ(place(label("9th of décade")).x() - place(label("•")).right() - 1, 4);
    const QRect civil = place(label("Jul 29, 2025"));
    EXPECT_EQ(civil.right(), 320 - 16 - 1);
    EXPECT_EQ(place(label("Gregorian")).right(), 320 - 16 - 1);
    EXPECT_EQ(place(label("Gregorian")).y() - civil.bottom() - 1, 4);

    const std::vector<int> lines = dividers();
    ASSERT_EQ(lines.size(), 5U);
    EXPECT_EQ(lines[0] - dayName.bottom() - 1, 16);
    const QRect decimal = place(label("2:95:13"));
    const QRect standard = place(label("7:05 AM"));
    EXPECT_EQ(decimal.y() - lines[0] - 1, 16);
    EXPECT_EQ(place(label("Decimal Time")).y() - decimal.bottom() - 1, 4);
    EXPECT_EQ(place(label("Standard Time")).y() - standard.bottom() - 1, 4);
    EXPECT_EQ(lines[1] - place(label("Decimal Time")).bottom() - 1, 16);
    EXPECT_EQ(standard.x() - decimal.right() - 1, 20 + 1 + 20);
    EXPECT_NEAR((decimal.left() + standard.right()) / 2.0, 160, 1) << "the two clocks stand in the middle";

    const QRect frame = place(panel->findChild<PictureView*>());
    EXPECT_EQ(frame, QRect(16, lines[1] + 1 + 16, 288, 260));
    const QRect name = place(label("Mûre"));
    EXPECT_EQ(name.y() - frame.bottom() - 1, 8);
    EXPECT_EQ(place(label("Blackberry • Plant")).y() - name.bottom() - 1, 8);
    EXPECT_EQ(lines[2] - place(label("Blackberry • Plant")).bottom() - 1, 16);

    const QRect heading = place(label("ON THIS DAY"));
    EXPECT_EQ(heading.x(), 16);
    EXPECT_EQ(heading.y() - lines[2] - 1, 16);
    const QRect emoji = place(label("⚡"));
    const QRect title = place(label("9 Thermidor"));
    EXPECT_EQ(emoji.topLeft(), QPoint(16, heading.bottom() + 1 + 8));
    EXPECT_EQ(title.x() - emoji.right() - 1, 8);
    EXPECT_EQ(place(label("Robespierre arrested - the Terror begins to end")).y() - title.bottom() - 1, 2);

    EXPECT_EQ(place(label("Sep 10, 1977")).right(), 320 - 16 - 1);
    EXPECT_EQ(place(label("Days Since Last Guillotine")).x(), 16 + 28 + 8);

    EXPECT_EQ(place(label("Liberté, Égalité, Fraternité")).x(), 16);
    const QRect quit = place(button("Quit"));
    EXPECT_EQ(quit.right(), 320 - 16 - 1);
    const auto* footer = panel->findChild<FooterSection*>();
    EXPECT_EQ(place(footer).bottom(), panel->height() - 1);
    EXPECT_EQ(footer->contentsRect().marginsRemoved(footer->layout()->contentsMargins()).top(), 8);
    EXPECT_EQ(footer->layout()->contentsMargins().bottom(), 8);
}

TEST_F(MenuBarViewTest, SetsEachTextInItsStyleAndInk) {
    open(test::anItemAndAnEvent);
    const struct {
        const char* text;
        TypeStyle style;
        Ink ink;
    } wanted[] = {
        {"AUJOURD'HUI", TypeScale::today, Ink::secondary},
        {"THERMIDOR", TypeScale::monthName, Ink::primary},
        {"\"Month of Heat\"", TypeScale::monthMeaning, Ink::secondary},
        {"☀️", TypeScale::monthEmoji, Ink::primary},
        {"9 Thermidor an CCXXXIII", TypeScale::fullDate, Ink::primary},
        {"Nonidi", TypeScale::body, Ink::primary},
        {"•", TypeScale::body, Ink::quaternary},
        {"9th of décade", TypeScale::subheadline, Ink::tertiary},
        {"Jul 29, 2025", TypeScale::caption, Ink::tertiary},
        {"Gregorian", TypeScale::smallCaption, Ink::quaternary},
        {"2:95:13", TypeScale::decimalTime, Ink::primary},
        {"Decimal Time", TypeScale::smallCaption, Ink::secondary},
        {"7:05 AM", TypeScale::standardTime, Ink::secondary},
        {"Standard Time", TypeScale::smallCaption, Ink::tertiary},
        {"Mûre", TypeScale::secondTitle, Ink::primary},
        {"Blackberry • Plant", TypeScale::caption, Ink::secondary},
        {"ON THIS DAY", TypeScale::sectionHeading, Ink::secondary},
        {"⚡", TypeScale::eventEmoji, Ink::primary},
        {"9 Thermidor", TypeScale::subheadlineMedium, Ink::primary},
        {"(An II)", TypeScale::smallCaption, Ink::tertiary},
        {"Robespierre arrested - the Terror begins to end", TypeScale::caption, Ink::secondary},
        {"Days Since Last Guillotine", TypeScale::caption, Ink::secondary},
        {"17,489", TypeScale::dayCount, Ink::red},
        {"Sep 10, 1977", TypeScale::smallCaption, Ink::tertiary},
        {"Marseille", TypeScale::smallCaption, Ink::quaternary},
        {"Liberté, Égalité, Fraternité", TypeScale::slogan, Ink::tertiary},
    };
    for (const auto& [text, style, ink] : wanted) {
        const TextLabel* found = label(text);
        ASSERT_NE(found, nullptr) << text;
        EXPECT_EQ(found->style(), style) << text;
        EXPECT_EQ(found->ink(), ink) << text;
    }
}

TEST_F(MenuBarViewTest, StepsByItsButtons) {
    open(test::anItemAndNoEvent);
    click("Next day");
    EXPECT_TRUE(shows("24 Brumaire an CCXXXIV"));
    EXPECT_FALSE(shows("AUJOURD'HUI"));
    ASSERT_NE(button("Aujourd'hui"), nullptr);
    EXPECT_EQ(button("Aujourd'hui")->symbolName(), "arrow.uturn.left");
    click("Previous day");
    click("Previous day");
    EXPECT_TRUE(shows("22 Brumaire an CCXXXIV"));
    click("Aujourd'hui");
    EXPECT_TRUE(shows("23 Brumaire an CCXXXIV"));
    EXPECT_TRUE(shows("AUJOURD'HUI"));
    EXPECT_EQ(button("Aujourd'hui"), nullptr);
}

TEST_F(MenuBarViewTest, StepsByItsKeys) {
    open(test::anItemAndNoEvent);
    press(Qt::Key_Right);
    press(Qt::Key_Right);
    EXPECT_EQ(state->manager.dayOffset(), 2);
    press(Qt::Key_T);
    EXPECT_EQ(state->manager.dayOffset(), 0);
    press(Qt::Key_Left);
    EXPECT_EQ(state->manager.dayOffset(), -1);
    EXPECT_TRUE(shows("22 Brumaire an CCXXXIV"));
}

TEST_F(MenuBarViewTest, TheKeysWorkWhileAControlHasTheFocus) {
    open(test::anItemAndNoEvent);
    button("Quit")->setFocus();
    QTest::keyClick(button("Quit"), Qt::Key_Left);
    QTest::keyClick(button("Quit"), Qt::Key_Left);
    EXPECT_EQ(state->manager.dayOffset(), -2);
    QTest::keyClick(button("Quit"), Qt::Key_T);
    EXPECT_EQ(state->manager.dayOffset(), 0);
}

TEST_F(MenuBarViewTest, AModifierMakesAnotherKeyOfIt) {
    open(test::anItemAndNoEvent);
    for (const Qt::KeyboardModifier modifier : {Qt::ShiftModifier, Qt::ControlModifier, Qt::AltModifier}) {
        press(Qt::Key_Left, modifier);
        press(Qt::Key_Right, modifier);
        EXPECT_EQ(state->manager.dayOffset(), 0);
    }
    press(Qt::Key_Right);
    press(Qt::Key_T, Qt::ControlModifier);
    EXPECT_EQ(state->manager.dayOffset(), 1);
    press(Qt::Key_Right, Qt::KeypadModifier);
    EXPECT_EQ(state->manager.dayOffset(), 2) << "the keypad's arrows are arrows";
}

TEST_F(MenuBarViewTest, OnTodayTheKeyToTodayDoesNothing) {
    open(test::anItemAndNoEvent);
    int announcements = 0;
    QObject::connect(&state->manager, &ObservableObject::objectWillChange, panel.get(),
                     [&announcements] { ++announcements; });
    press(Qt::Key_T);
    EXPECT_EQ(announcements, 0);
}

TEST_F(MenuBarViewTest, TellsWhatItsControlsDo) {
    open(test::anItemAndNoEvent);
    EXPECT_EQ(button("Previous day")->toolTip(), "Previous day");
    EXPECT_EQ(button("Next day")->toolTip(), "Next day");
    EXPECT_EQ(button("Toggle chime")->toolTip(), "Click to toggle • Option-click to test chime");
    EXPECT_EQ(button("Copy")->toolTip(), "");
    EXPECT_EQ(button("Preferences")->toolTip(), "Preferences");
    EXPECT_EQ(button("Quit")->toolTip(), "");
    press(Qt::Key_Left);
    EXPECT_EQ(button("Aujourd'hui")->toolTip(), "Return to today");
    EXPECT_EQ(
        label("Duodi")->parentWidget()->toolTip(),
        "The Revolutionary calendar replaced the 7-day week with a 10-day 'décade'. Workers got 1 rest day "
        "per 10 instead of per 7.");
}

TEST_F(MenuBarViewTest, TabVisitsEveryControlAsItIsRead) {
    open(test::anItemAndNoEvent);
    press(Qt::Key_Right);
    panel->activateWindow();
    panel->setFocus();
    QStringList visited;
    for (int i = 0; i < 7; ++i) {
        QTest::keyClick(QApplication::focusWidget() ? QApplication::focusWidget() : panel.get(), Qt::Key_Tab);
        auto* focused = qobject_cast<SymbolButton*>(panel->focusWidget());
        ASSERT_NE(focused, nullptr) << i;
        visited.append(focused->accessibleName().isEmpty() ? focused->text() : focused->accessibleName());
        auto* ring = panel->findChild<FocusRing*>();
        EXPECT_TRUE(ring->isVisible());
        EXPECT_TRUE(ring->geometry().contains(place(focused)));
    }
    EXPECT_EQ(visited, (QStringList{"Previous day", "Aujourd'hui", "Next day", "Toggle chime", "Copy",
                                    "Preferences", "Quit"}));
}

TEST_F(MenuBarViewTest, AScreenReaderFindsEveryControlAndText) {
    open(test::anItemAndAnEvent);
    for (SymbolButton* control : panel->findChildren<SymbolButton*>()) {
        QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(control);
        ASSERT_NE(interface, nullptr);
        EXPECT_EQ(interface->role(), QAccessible::Button);
        EXPECT_FALSE(interface->text(QAccessible::Name).isEmpty());
    }
    for (TextLabel* text : panel->findChildren<TextLabel*>()) {
        QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(text);
        ASSERT_NE(interface, nullptr);
        EXPECT_EQ(interface->role(), QAccessible::StaticText);
        EXPECT_EQ(interface->text(QAccessible::Name), text->text());
    }
}

TEST_F(MenuBarViewTest, CopiesTheShareableText) {
    open(test::anItemAndNoEvent);
    press(Qt::Key_Left);
    QObject context;
    int changes = 0;
    QObject::connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, &context,
                     [&changes] { ++changes; });
    click("Copy");
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "🌫️ 22 Brumaire an CCXXXIV · 5:00 décimal");
    EXPECT_EQ(QGuiApplication::clipboard()->text(), state->manager.shareableText());
    EXPECT_EQ(changes, 1) << "never empty in between";
    EXPECT_EQ(button("Copy")->symbolName(), "checkmark");
    EXPECT_EQ(button("Copy")->text(), "Copied!");
    EXPECT_EQ(button("Copy")->ink(), Ink::green);
    ASSERT_EQ(state->delayed.size(), 1U);
    EXPECT_EQ(state->delayed.front().delay, 2s);
    state->delayed.front().action();
    EXPECT_EQ(button("Copy")->symbolName(), "doc.on.doc");
    EXPECT_EQ(button("Copy")->text(), "");
    EXPECT_EQ(button("Copy")->ink(), Ink::secondary);
}

TEST_F(MenuBarViewTest, CopiesByTheUsualKeysToo) {
    open(test::anItemAndNoEvent);
    QGuiApplication::clipboard()->clear();
    press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), state->manager.shareableText());
    EXPECT_EQ(button("Copy")->text(), "Copied!");
}

TEST_F(MenuBarViewTest, TheCopiedWordHasItsPlaceInTheFooter) {
    open(test::anItemAndNoEvent);
    const QRect quit = place(button("Quit"));
    click("Copy");
    EXPECT_EQ(place(button("Quit")), quit);
    const SymbolButton* copy = button("Copy");
    EXPECT_EQ(copy->width(), copy->sizeHint().width());
    EXPECT_LE(place(label("Liberté, Égalité, Fraternité")).right(), place(button("Toggle chime")).left());
}

TEST_F(MenuBarViewTest, TheChimeButtonTogglesTheChime) {
    open(test::anItemAndNoEvent);
    EXPECT_EQ(button("Toggle chime")->symbolName(), "speaker.wave.2");
    EXPECT_EQ(button("Toggle chime")->ink(), Ink::blue);
    click("Toggle chime");
    EXPECT_FALSE(state->sound.soundEnabled());
    EXPECT_EQ(button("Toggle chime")->symbolName(), "speaker.slash");
    EXPECT_EQ(button("Toggle chime")->ink(), Ink::secondary);
    click("Toggle chime");
    EXPECT_TRUE(state->sound.soundEnabled());
    EXPECT_TRUE(state->platform.audioPlayer.played.empty());
    EXPECT_EQ(state->platform.systemSound.beeps, 0);
}

TEST_F(MenuBarViewTest, WithOptionTheChimeButtonTestsTheChime) {
    open(test::anItemAndNoEvent);
    click("Toggle chime", Qt::AltModifier);
    EXPECT_TRUE(state->sound.soundEnabled());
    EXPECT_EQ(state->platform.audioPlayer.played.size() +
                  static_cast<std::size_t>(state->platform.systemSound.beeps),
              1U);
    click("Toggle chime");
    click("Toggle chime", Qt::AltModifier);
    EXPECT_FALSE(state->sound.soundEnabled()) << "a test changes nothing";
    EXPECT_EQ(state->platform.audioPlayer.played.size() +
                  static_cast<std::size_t>(state->platform.systemSound.beeps),
              1U)
        << "and sounds only while chimes are on";
}

TEST_F(MenuBarViewTest, AsksForSettingsAndForTheEnd) {
    open(test::anItemAndNoEvent);
    int settings = 0;
    int quits = 0;
    QObject::connect(panel.get(), &MenuBarView::settingsRequested, panel.get(), [&settings] { ++settings; });
    QObject::connect(panel.get(), &MenuBarView::quitRequested, panel.get(), [&quits] { ++quits; });
    click("Preferences");
    click("Quit");
    EXPECT_EQ(settings, 1);
    EXPECT_EQ(quits, 1);
}

TEST_F(MenuBarViewTest, BothThemesByPixel) {
    QPalette dark(Qt::black);
    QApplication::setPalette(dark); // whatever the desktop looks like
    open(test::anItemAndNoEvent);
    EXPECT_EQ(picture().pixelColor(3, 3), Palette::parchment);
    EXPECT_EQ(picture().pixelColor(316, panel->height() - 3), Palette::parchment);
    state->manager.setTheme(AppTheme::sepiaNight);
    test::runQueued();
    QApplication::setPalette({});
    const QImage night = picture();
    EXPECT_EQ(night.pixelColor(3, 3), Palette::mahogany);
    EXPECT_EQ(night.pixelColor(316, panel->height() - 3), Palette::mahogany);
    const QRect month = place(label("BRUMAIRE"));
    bool inked = false;
    for (int x = month.left(); x < month.right(); ++x) {
        for (int y = month.top(); y < month.bottom(); ++y)
            inked |= night.pixelColor(x, y) == Palette::nightInk;
    }
    EXPECT_TRUE(inked) << "text without a style is set in the night's ink";
}

/// A panel among whose resources are the pictures that a test has put there, each of one colour.
class PicturesOfTheDayTest : public MenuBarViewTest {
protected:
    void begin(const CivilComponents& now) { state = std::make_unique<test::StateOnFakes>(now); }
    void ship(const QString& name, const QColor& color) {
        QImage image(576, 520, QImage::Format_RGB32);
        image.fill(color);
        const QString file = folder.filePath(QString(name).replace(QLatin1Char('/'), QLatin1Char('-')));
        ASSERT_TRUE(image.save(file));
        state->platform.resources.files.insert(name, file);
    }
    /// The colour in the middle of a part of the panel.
    [[nodiscard]] QColor middle(const QWidget* part) const {
        return picture().pixelColor(place(part).center());
    }
    [[nodiscard]] QStringList picturesLookedUp() const {
        return state->platform.resources.lookedUp.filter(QLatin1String("plates/"));
    }

    const QColor plateInk{136, 170, 102};
    const QColor otherInk{30, 60, 200};
    const QColor guillotineInk{200, 40, 90};
    QTemporaryDir folder;
};

TEST_F(PicturesOfTheDayTest, ThePlateStandsInPlaceOfTheEmoji) {
    begin(test::anItemAndNoEvent);
    ship("plates/day_053_garance.png", plateInk);
    openOnState();
    EXPECT_EQ(picturesLookedUp(), (QStringList{"plates/Guillotine.png", "plates/day_053_garance.png"}));
    test::expectNear(middle(panel->findChild<PictureView*>()), test::printed(plateInk, Palette::parchment));
    EXPECT_FALSE(shows("🌿"));
    EXPECT_TRUE(shows("Garance"));
}

TEST_F(PicturesOfTheDayTest, EachDayHasItsOwnPlateAndWithoutOneItsEmoji) {
    begin(test::anItemAndNoEvent);
    ship("plates/day_053_garance.png", plateInk);
    ship("plates/day_054_orange.png", otherInk);
    openOnState();
    const auto* frame = panel->findChild<PictureView*>();
    press(Qt::Key_Right);
    test::expectNear(middle(frame), test::printed(otherInk, Palette::parchment));
    EXPECT_FALSE(shows("🍊"));
    press(Qt::Key_Right);
    EXPECT_EQ(picturesLookedUp().constLast(), "plates/day_055_faisan.png");
    EXPECT_TRUE(shows(state->manager.dailyItem()->emoji.data()));
    press(Qt::Key_T);
    test::expectNear(middle(frame), test::printed(plateInk, Palette::parchment));
}

TEST_F(PicturesOfTheDayTest, ThePlateIsPrintedOnTheThemesOwnPaper) {
    begin(test::anItemAndNoEvent);
    ship("plates/day_053_garance.png", plateInk);
    openOnState();
    state->manager.setTheme(AppTheme::sepiaNight);
    test::runQueued();
    test::expectNear(middle(panel->findChild<PictureView*>()), test::printed(plateInk, Palette::agedTan));
}

TEST_F(PicturesOfTheDayTest, TheGuillotineStandsBesideItsDays) {
    begin(test::anItemAndNoEvent);
    ship("plates/Guillotine.png", guillotineInk);
    openOnState();
    const auto* image = panel->findChild<FittedImage*>();
    test::expectNear(middle(image), test::printed(guillotineInk, Palette::parchment));
    EXPECT_EQ(place(image).right() + 1 + 8, place(label("Days Since Last Guillotine")).x());
    EXPECT_TRUE(shows("🌿")) << "no plate has been shipped";
}

/// Collects which widgets are painted.
class PaintWatch final : public QObject {
public:
    explicit PaintWatch(QWidget* root) {
        for (QWidget* widget : root->findChildren<QWidget*>())
            widget->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Paint) {
            if (auto* label = qobject_cast<TextLabel*>(watched))
                labels.insert(label->text());
            else if (watched->metaObject()->className() == QByteArray("tambrelle::PictureView"))
                ++pictures;
        } else if (event->type() == QEvent::LayoutRequest) {
            ++layouts;
        }
        return false;
    }

    std::set<QString> labels;
    int pictures = 0;
    int layouts = 0;
};

TEST_F(MenuBarViewTest, ATickPaintsOnlyTheClocks) {
    open(test::anItemAndNoEvent);
    PaintWatch watch(panel.get());
    tick(1s); // one second of civil time, so that the decimal second surely changes
    EXPECT_TRUE(test::waitUntil([&watch] { return !watch.labels.empty(); }));
    EXPECT_EQ(watch.labels, std::set<QString>{"5:00:01"}) << "within the same civil minute";
    EXPECT_EQ(watch.pictures, 0);
    EXPECT_EQ(watch.layouts, 0);
}

TEST_F(MenuBarViewTest, HiddenItDoesNothingAtAll) {
    open(test::anItemAndNoEvent);
    panel->hide();
    test::runQueued();
    const int readings = state->platform.clock.reads();
    tick(1h);
    EXPECT_EQ(state->platform.clock.reads(), readings + 1) << "the tick's own reading";
    EXPECT_NE(panel->findChildren<TextLabel*>().size(), 0);
    show();
    EXPECT_TRUE(shows("5:41:66")) << texts().join("|").toStdString();
}

TEST_F(MenuBarViewTest, IsAsTallAsItsContent) {
    open(test::anItemAndNoEvent);
    const int withItem = panel->height();
    int changes = 0;
    QObject::connect(panel.get(), &MenuBarView::heightChanged, panel.get(), [&changes] { ++changes; });
    state->platform.setTime(test::local(test::aComplementaryDay));
    tick(0ms);
    EXPECT_LT(panel->height(), withItem);
    EXPECT_EQ(panel->height(), panel->sizeHint().height());
    EXPECT_GE(changes, 1);
}

} // namespace
} // namespace tambrelle
