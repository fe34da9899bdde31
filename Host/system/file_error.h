#pragma once
// The errors of file operations that a script or an add-in asked for.
#include "Basic/runtime_error.h"
#include "Host/files/system_error.h"
#include <cerrno>
#include <string>
#include <utility>

namespace host {

/// As scripts see them: what the IDE's own saving calls "Path/File access error" (75) for want of permission is
/// "Permission denied" (70) here, and a file that is looked for in something that is no folder is 76.
inline basic::RuntimeError scriptError(basic::RuntimeError error) {
    const auto number = error.LastDllError;
    const bool denied = number == EACCES || number == EPERM || number == EROFS;
    if (error.Number != basic::kPathFileAccessError || !denied) return error;
    return basic::RuntimeError(basic::kPermissionDenied, std::move(error.Description), std::move(error.Source), number);
}

inline basic::RuntimeError scriptError(int error, const std::string& what, const std::string& path) {
    return scriptError(systemError(error, what, path));
}

/// Runs an operation whose errors are those of the IDE's saving.
template <class F>
auto withScriptErrors(F&& operation) {
    try {
        return operation();
    } catch (const basic::RuntimeError& error) { throw scriptError(error); }
}

} // namespace host
