#include "Apps/fernwick/programs/run_error_text.h"
#include "Host/files/path_lookup.h"

namespace cli {

std::string textOf(const tamarik::RunError& error, const ProjectProgram& program) {
    return tamarik::textOf(error, [&](const std::string& file) { return program.pathOf(file); });
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
