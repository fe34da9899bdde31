#include "Components/Tamarik/vm/run_error.h"
#include "Basic/printable.h"

namespace tamarik {

namespace {

/// A program chooses the text; it must not look like further lines.
std::string whatOf(const RunError& error) {
    const auto text = basic::printable(error.text);
    return error.number == RunError::kStopped ? text : "run-time error " + std::to_string(error.number) + ": " + text;
}

std::string textOf(const RunError::Place& place, const ShownFile& shown) {
    return (shown ? shown(place.file) : place.file) + ":" + std::to_string(place.line);
}

} // namespace

std::string textOf(const RunError& error, const ShownFile& shown) {
    if (error.callers.empty()) return whatOf(error);
    auto text = textOf(error.callers.front(), shown) + ": " + whatOf(error);
    text += "\n  in " + error.callers.front().procedure;
    for (std::size_t i = 1; i < error.callers.size(); ++i)
        text += "\n  called by " + error.callers[i].procedure + " (" + textOf(error.callers[i], shown) + ")";
    return text;
}

} // namespace tamarik
