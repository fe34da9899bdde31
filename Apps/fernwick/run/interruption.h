#pragma once
// Exceptions that end a run. They are not errors of the add-in, so they pass through its error traps to main.
#include <exception>
#include <string>

namespace cli {

/// Ctrl+C.
struct Interrupted : std::exception {
    const char* what() const noexcept override { return "Interrupted"; }
};

/// A question that is repeated although it was answered.
class StuckQuestion : public std::exception {
public:
    explicit StuckQuestion(std::string text) : text_(std::move(text)) {}
    const char* what() const noexcept override { return text_.c_str(); }

private:
    std::string text_;
};

/// From now on the first Ctrl+C is only recorded; a second one ends the process.
void watchForInterrupt();
/// Throws Interrupted if Ctrl+C was pressed.
void checkInterrupt();
bool wasInterrupted();

} // namespace cli
