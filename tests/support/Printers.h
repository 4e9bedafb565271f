#pragma once

#include <QString>

#include <ostream>

/// How a test that fails prints the toolkit's types; found by the test library in their own namespace.
inline void PrintTo(const QString& text, std::ostream* stream) {
    *stream << '"' << text.toStdString() << '"';
}
