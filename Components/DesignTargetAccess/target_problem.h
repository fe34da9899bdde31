#pragma once
// An error in a design target file.
#include <string>
#include <utility>

namespace designtargetaccess {

/// Thrown while reading a file and stored in the manager's list. Never leaves the component.
struct TargetProblem {
    TargetProblem(std::string inFile, std::size_t atLine, std::string why)
        : file(std::move(inFile)), line(atLine), reason(std::move(why)) {}
    /// Returns "file:line: reason", or "file: reason" without a line.
    std::string text() const;

    std::string file;
    std::size_t line; ///< from 1; 0 if unknown
    std::string reason;
};

} // namespace designtargetaccess
