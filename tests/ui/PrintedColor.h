#pragma once

#include <QColor>

#include <gtest/gtest.h>

namespace tambrelle::test {

/// What an ink looks like that is printed on paper of a colour: each of their parts multiplied.
inline QColor printed(const QColor& ink, const QColor& paper) {
    const auto multiplied = [](int one, int other) { return qRound(one * other / 255.0); };
    return {multiplied(ink.red(), paper.red()), multiplied(ink.green(), paper.green()),
            multiplied(ink.blue(), paper.blue())};
}

inline void expectNear(const QColor& found, const QColor& wanted, int distance = 1) {
    EXPECT_NEAR(found.red(), wanted.red(), distance);
    EXPECT_NEAR(found.green(), wanted.green(), distance);
    EXPECT_NEAR(found.blue(), wanted.blue(), distance);
}

} // namespace tambrelle::test
