#pragma once
// A run-time error that no handler took.
#include <cstddef>
#include <cstdint>
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

} // namespace tamarik
