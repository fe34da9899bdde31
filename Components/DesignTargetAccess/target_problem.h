#pragma once
// Why a file of the targets folder gives no target.
#include <exception>
#include <string>
#include <utility>

namespace designtargetaccess {

/// Thrown while a file is read, kept in the manager's list afterwards; it never leaves the component.
struct TargetProblem : std::exception {
    TargetProblem(std::string inFile, std::size_t atLine, std::string why)
        : file(std::move(inFile)), line(atLine), reason(std::move(why)) {}
    const char* what() const noexcept override { return reason.c_str(); }
    /// "file:line: reason", or "file: reason" where no line is to blame.
    std::string text() const;

    std::string file;
    std::size_t line; ///< from 1; 0 for none
    std::string reason;
};

} // namespace designtargetaccess
