#pragma once

#include <QString>

namespace tambrelle::test {

/// From here on every warning that the toolkit prints fails the test that is running.
void failOnWarnings();

/// Within its scope a warning that contains `part` is expected: it fails nothing, and its absence does.
class ExpectWarning final {
public:
    explicit ExpectWarning(const QString& part);
    ~ExpectWarning();

    ExpectWarning(const ExpectWarning&) = delete;
    ExpectWarning& operator=(const ExpectWarning&) = delete;
};

} // namespace tambrelle::test
