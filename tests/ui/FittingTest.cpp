#include "tests/ui/PanelTest.h"

#include <array>

namespace tambrelle {
namespace {

using namespace std::chrono_literals;

/// Nothing is cut: every label has the room that its text needs, and every part lies within the panel.
class FittingTest : public test::PanelTest, public ::testing::WithParamInterface<const char*> {
protected:
    void expectEverythingFits(const std::string& where) const {
        for (const TextLabel* label : panel->findChildren<TextLabel*>()) {
            if (!label->isVisible())
                continue;
            const std::string what = where + ": " + label->text().toStdString();
            EXPECT_GE(label->width(), label->minimumSizeHint().width()) << what;
            const int wanted = label->hasHeightForWidth() ? label->heightForWidth(label->width())
                                                          : label->sizeHint().height();
            EXPECT_GE(label->height(), wanted) << what;
            EXPECT_TRUE(panel->rect().contains(place(label))) << what;
        }
    }
    void expectNoOverlap(const std::string& where) const {
        const auto labels = panel->findChildren<TextLabel*>();
        for (qsizetype i = 0; i < labels.size(); ++i) {
            for (qsizetype j = i + 1; j < labels.size(); ++j) {
                if (labels[i]->isVisible() && labels[j]->isVisible()) {
                    EXPECT_FALSE(place(labels[i]).intersects(place(labels[j])))
                        << where << ": " << labels[i]->text().toStdString() << " and "
                        << labels[j]->text().toStdString();
                }
            }
        }
    }
};

TEST_P(FittingTest, EveryDayOfALongYear) {
    QLocale::setDefault(QLocale(GetParam()));
    open({2025, 9, 1, 23, 59, 59});
    // The years 230 to 239 have the longest numerals for a long time; 238 is the longest.
    state->platform.setTime(test::local({2029, 9, 24, 22, 58, 58}));
    for (int day = 0; day < 370; ++day) {
        tick(24h);
        const std::string where = state->manager.currentDate().formatted() + " in " + GetParam();
        expectEverythingFits(where);
        if (day % 10 == 0)
            expectNoOverlap(where);
        if (::testing::Test::HasFailure())
            break;
    }
}

INSTANTIATE_TEST_SUITE_P(Locales, FittingTest,
                         ::testing::Values("en_US", "de_DE", "ar_EG", "fr_FR", "hi_IN", "th_TH"),
                         [](const auto& tested) { return std::string(tested.param); });

} // namespace
} // namespace tambrelle
