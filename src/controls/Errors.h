#pragma once
// Failures of statements under the program's skip-on-error rule. A control, file or component
// operation that fails throws RuntimeError; a procedure that skips failed statements wraps each
// in tryStep, a procedure without the rule lets it reach its caller.
#include <QString>
#include <functional>
#include <stdexcept>

namespace sonarium {

class RuntimeError : public std::runtime_error {
public:
    // Numbers follow the run-time's own where the program shows or tests them.
    enum Number {
        InvalidCall = 5,
        Overflow = 6,
        OutOfMemory = 7,
        SubscriptOutOfRange = 9,
        DivisionByZero = 11,
        TypeMismatch = 13,
        BadFileNameOrNumber = 52,
        FileNotFound = 53,
        BadFileMode = 54,
        InputPastEnd = 62,
        DiskFull = 61,
        PermissionDenied = 70,
        DeviceUnavailable = 68,
        PathFileAccess = 75,
        PathNotFound = 76,
        InvalidPropertyValue = 380,
        InvalidPropertyIndex = 381,
        InvalidPicture = 481,
        ComponentFailed = 3000,
    };
    RuntimeError(int number, const QString& text)
        : std::runtime_error(text.toStdString()), number_(number), text_(text) {}
    int number() const { return number_; }
    const QString& text() const { return text_; }

private:
    int number_;
    QString text_;
};

// Where the failures that the skip-on-error rule swallows are told. A component like the
// others: the program's writes them out for a developer, a test's collects them.
class ErrorReporter {
public:
    virtual ~ErrorReporter() = default;
    virtual void skipped(const QString& what) = 0;
};

// Runs one statement; a failure is told to `errors` and swallowed.
// Returns false when the statement failed, so a caller can resume where the rule says.
bool tryStep(ErrorReporter& errors, const std::function<void()>& statement);

}  // namespace sonarium
