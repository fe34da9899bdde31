#include "Apps/fernwick/programs/profile.h"
#include "Host/files/path_lookup.h"
#include <algorithm>
#include <fmt/format.h>

namespace cli {

void Profile::sample(const tamarik::Machine& machine) {
    const auto places = machine.callers();
    if (places.empty()) return;
    const auto& top = places.front();
    ++samples_[{top.file, top.procedure, top.line}];
    ++total_;
}

std::vector<Profile::Row> Profile::rows() const {
    std::vector<Row> rows;
    for (const auto& [place, count] : samples_) {
        const auto& [file, procedure, line] = place;
        rows.push_back({file, procedure, line, count});
    }
    std::stable_sort(rows.begin(), rows.end(), [](const Row& a, const Row& b) { return a.samples > b.samples; });
    return rows;
}

std::string Profile::text(const ProjectProgram& program) const {
    std::string text = fmt::format("{} samples\n", total_);
    for (const auto& row : rows())
        text += fmt::format("{:5.1f} %  {}:{}  {}\n",
                            100.0 * static_cast<double>(row.samples) / static_cast<double>(total_),
                            program.pathOf(row.file), row.line, row.procedure);
    return text;
}

Json Profile::json(const ProjectProgram& program) const {
    Json json = Json::array();
    for (const auto& row : rows())
        json.push_back({{"file", host::absolutePath(program.pathOf(row.file))},
                        {"line", row.line},
                        {"procedure", row.procedure},
                        {"samples", row.samples}});
    return json;
}

} // namespace cli
