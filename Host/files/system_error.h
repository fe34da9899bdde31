#pragma once
// What the operating system refuses, as VB says it.
#include "Basic/runtime_error.h"
#include <string>

namespace host {

/// The run-time error for a failed system call: VB's number for `error` (an errno), a description that names the
/// path, source "VBIDE" and the errno as last system error.
basic::RuntimeError systemError(int error, const std::string& what, const std::string& path);

/// As systemError for a file whose folder is not there: error 76.
basic::RuntimeError missingFolder(const std::string& what, const std::string& path);

/// VB's number for an errno that a file operation gave.
int fileErrorNumber(int error) noexcept;

/// An error of the host's own, with its source "VBIDE".
basic::RuntimeError hostError(int number, std::string description = {});

} // namespace host
