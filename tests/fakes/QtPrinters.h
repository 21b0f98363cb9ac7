#pragma once
// Lets GoogleTest print Qt strings in failure messages as text, not as bytes. Found by
// argument-dependent lookup, so it must be declared in QString's (global) namespace.
#include <QString>
#include <ostream>

inline void PrintTo(const QString& s, std::ostream* os) { *os << '"' << s.toStdString() << '"'; }
