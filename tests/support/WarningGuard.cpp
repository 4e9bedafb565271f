#include "tests/support/WarningGuard.h"

#include <QtGlobal>

#include <cstdio>
#include <gtest/gtest.h>
#include <mutex>

namespace tambrelle::test {

namespace {

struct Expectation {
    std::mutex mutex;
    QString part;
    bool met = false;
};

Expectation& expectation() {
    static Expectation instance;
    return instance;
}

bool isExpected(const QString& text) {
    const std::scoped_lock lock(expectation().mutex);
    if (expectation().part.isEmpty() || !text.contains(expectation().part))
        return false;
    expectation().met = true;
    return true;
}

/// What the platform without a display says of itself, whatever the program does.
bool isLimitOfThePlatform(const QString& text) {
    return text.startsWith(QLatin1String("This plugin does not support "));
}

void judge(QtMsgType type, const QMessageLogContext& /*context*/, const QString& text) {
    const bool isWarning = type == QtWarningMsg || type == QtCriticalMsg || type == QtFatalMsg;
    if (isWarning && !isLimitOfThePlatform(text) && !isExpected(text))
        ADD_FAILURE() << "the toolkit warned: " << qUtf8Printable(text);
    if (!isWarning)
        std::fprintf(stderr, "%s\n", qUtf8Printable(text));
}

} // namespace

void failOnWarnings() {
    qInstallMessageHandler(judge);
}

ExpectWarning::ExpectWarning(const QString& part) {
    const std::scoped_lock lock(expectation().mutex);
    expectation().part = part;
    expectation().met = false;
}

ExpectWarning::~ExpectWarning() {
    const std::scoped_lock lock(expectation().mutex);
    EXPECT_TRUE(expectation().met) << "no warning about: " << qUtf8Printable(expectation().part);
    expectation().part.clear();
}

} // namespace tambrelle::test
