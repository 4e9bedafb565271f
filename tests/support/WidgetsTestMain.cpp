#include "tests/support/WarningGuard.h"

#include <QApplication>

#include <gtest/gtest.h>

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    // Drawn into memory, unless a test run asks for a real display by name.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    tambrelle::test::failOnWarnings();
    return RUN_ALL_TESTS();
}
