#include "Apps/fernwick/programs/run_error_text.h"
#include "Basic/printable.h"
#include "Host/files/path_lookup.h"
#include <fmt/format.h>

namespace cli {

namespace {

/// A program chooses the text; it must not look like further lines.
std::string whatOf(const tamarik::RunError& error) {
    const auto text = basic::printable(error.text);
    return error.number == tamarik::RunError::kStopped ? text
                                                       : fmt::format("run-time error {}: {}", error.number, text);
}

std::string placeText(const tamarik::RunError::Place& place, const ProjectProgram& program) {
    return fmt::format("{}:{}", program.pathOf(place.file), place.line);
}

} // namespace

std::string textOf(const tamarik::RunError& error, const ProjectProgram& program) {
    if (error.callers.empty()) return whatOf(error);
    auto text = fmt::format("{}: {}", placeText(error.callers.front(), program), whatOf(error));
    text += fmt::format("\n  in {}", error.callers.front().procedure);
    for (std::size_t i = 1; i < error.callers.size(); ++i)
        text += fmt::format("\n  called by {} ({})", error.callers[i].procedure, placeText(error.callers[i], program));
    return text;
}

Json jsonOf(const tamarik::RunError& error, const ProjectProgram& program) {
    Json json{{"number", error.number}, {"text", error.text}, {"callers", Json::array()}};
    for (const auto& place : error.callers)
        json["callers"].push_back({{"file", host::absolutePath(program.pathOf(place.file))},
                                   {"line", place.line},
                                   {"procedure", place.procedure}});
    return json;
}

} // namespace cli
