#pragma once
// A run-time error that no handler took.
#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace tamarik {

/// A deep recursion does not make a long report.
inline constexpr std::size_t kMostReportedCallers = 100;

struct RunError {
    struct Place {
        std::string file, procedure;
        std::uint32_t line = 0;
    };
    static constexpr int kStopped = 0; ///< the number of a failed Debug.Assert and of Stop

    int number = 0;
    std::string text, source;
    std::vector<Place> callers; ///< where it failed, then the callers
};

/// Returns what a file of the program is shown as. Without one, its name.
using ShownFile = std::function<std::string(const std::string& file)>;

/// Returns `file:line: run-time error 9: Subscript out of range`, and a line for each caller.
[[nodiscard]] std::string textOf(const RunError& error, const ShownFile& shown = {});

} // namespace tamarik
