#pragma once
#include <cstddef>
#include <string>

namespace host {

/// What was wrong with a file that was opened. The rest of the project stays usable.
struct LoadProblem {
    std::string file;     ///< the file where it shows: the project for a member that is missing
    std::size_t line = 0; ///< physical line, from 1; 0 for the file as a whole
    std::string text;

    friend bool operator==(const LoadProblem&, const LoadProblem&) = default;
};

} // namespace host
