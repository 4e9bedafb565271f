#pragma once

#include <QByteArray>
#include <QtGlobal>

namespace tambrelle::test {

/// Within its scope the environment's variable has this value; null means that it is not set.
class ScopedEnvironment final {
public:
    ScopedEnvironment(const char* name, const QByteArray& value)
        : name(name), wasSet(qEnvironmentVariableIsSet(name)), previous(qgetenv(name)) {
        set(!value.isNull(), value);
    }
    ~ScopedEnvironment() { set(wasSet, previous); }

    ScopedEnvironment(const ScopedEnvironment&) = delete;
    ScopedEnvironment& operator=(const ScopedEnvironment&) = delete;

private:
    void set(bool isSet, const QByteArray& value) const {
        if (isSet)
            qputenv(name, value);
        else
            qunsetenv(name);
    }

    const char* name;
    bool wasSet;
    QByteArray previous;
};

} // namespace tambrelle::test
