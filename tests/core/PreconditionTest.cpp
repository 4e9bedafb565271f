#include "core/Precondition.h"

#include "tests/core/Limits.h"

#include <gtest/gtest.h>

namespace tambrelle {
namespace {

using test::greatest, test::least;

TEST(Precondition, LetsAPossibleStatePass) {
    precondition(true, "never printed");
}

TEST(PreconditionDeathTest, StopsTheProgramWithOneLine) {
    EXPECT_EXIT(precondition(false, "what went wrong"), testing::KilledBySignal(SIGABRT),
                "^tambrelle: impossible state: what went wrong\n$");
}

TEST(CheckedArithmetic, CountsUpToTheLimits) {
    EXPECT_EQ(checkedAdd(greatest - 1, 1), greatest);
    EXPECT_EQ(checkedSubtract(least + 1, 1), least);
    EXPECT_EQ(checkedMultiply(greatest / 2, 2), greatest - 1);
}

TEST(CheckedArithmeticDeathTest, StopsOnOverflow) {
    EXPECT_DEATH(checkedAdd(greatest, 1), "overflow in an addition");
    EXPECT_DEATH(checkedAdd(least, -1), "overflow in an addition");
    EXPECT_DEATH(checkedSubtract(least, 1), "overflow in a subtraction");
    EXPECT_DEATH(checkedMultiply(greatest, 2), "overflow in a multiplication");
    EXPECT_DEATH(checkedMultiply(least, -1), "overflow in a multiplication");
}

} // namespace
} // namespace tambrelle
