#pragma once
// Where a program spends its instructions.
#include "Apps/fernwick/output/json_output.h"
#include "Apps/fernwick/programs/project_program.h"
#include "Components/Tamarik/machine/machine.h"
#include <cstdint>
#include <map>
#include <string>
#include <tuple>
#include <vector>

namespace cli {

/// Counts where a program is after each slice, as it is stopped at the ends of loops and at calls.
class Profile {
public:
    void sample(const tamarik::Machine& machine);

    /// The most frequent first.
    [[nodiscard]] std::string text(const ProjectProgram& program) const;
    [[nodiscard]] Json json(const ProjectProgram& program) const;

private:
    struct Row {
        std::string file, procedure;
        std::uint32_t line;
        std::uint64_t samples;
    };
    [[nodiscard]] std::vector<Row> rows() const;

    std::map<std::tuple<std::string, std::string, std::uint32_t>, std::uint64_t> samples_;
    std::uint64_t total_ = 0;
};

} // namespace cli
