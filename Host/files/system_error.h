#pragma once
// Failed system calls as VB's run-time errors.
#include "Basic/runtime_error.h"
#include <string>

namespace host {

/// Returns the run-time error for a failed system call: VB's number for `error` (an errno), a description with the
/// path, source "VBIDE" and the errno as last system error.
basic::RuntimeError systemError(int error, const std::string& what, const std::string& path);

/// As systemError, for a file whose folder does not exist: error 76.
basic::RuntimeError missingFolder(const std::string& what, const std::string& path);

/// Returns VB's number for the errno of a file operation.
int fileErrorNumber(int error) noexcept;

/// Returns an error raised by the host itself, with source "VBIDE".
basic::RuntimeError hostError(int number, std::string description = {});

} // namespace host
