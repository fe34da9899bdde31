#pragma once
// Ends of a run that no error trap may hold up: they unwind through the add-in to main.
#include <exception>
#include <string>

namespace cli {

/// Ctrl+C.
struct Interrupted : std::exception {
    const char* what() const noexcept override { return "Interrupted"; }
};

/// A question that came back unchanged after its answer.
class StuckQuestion : public std::exception {
public:
    explicit StuckQuestion(std::string text) : text_(std::move(text)) {}
    const char* what() const noexcept override { return text_.c_str(); }

private:
    std::string text_;
};

/// From here on Ctrl+C is noted rather than ending the process at once. A second one ends it.
void watchForInterrupt();
/// Raises Interrupted when Ctrl+C was pressed.
void checkInterrupt();
bool wasInterrupted();

} // namespace cli
