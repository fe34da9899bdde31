#pragma once
#include <cstddef>
#include <string>

namespace host {

/// A problem with a file that was opened. The rest of the project remains usable.
struct LoadProblem {
    std::string file;     ///< the file to show; the project's file for a missing member
    std::size_t line = 0; ///< physical line, from 1; 0 for the whole file
    std::string text;

    friend bool operator==(const LoadProblem&, const LoadProblem&) = default;
};

} // namespace host
