#pragma once
// The errors of file operations that a script or an add-in requested.
#include "Basic/runtime_error.h"
#include "Host/files/system_error.h"
#include <cerrno>
#include <string>
#include <utility>

namespace host {

/// Converts an error of the IDE's file operations to the one that scripts get: missing permission is "Permission
/// denied" (70) and not "Path/File access error" (75).
inline basic::RuntimeError scriptError(basic::RuntimeError error) {
    const auto number = error.LastDllError;
    const bool denied = number == EACCES || number == EPERM || number == EROFS;
    if (error.Number != basic::kPathFileAccessError || !denied) return error;
    return basic::RuntimeError(basic::kPermissionDenied, std::move(error.Description), std::move(error.Source), number);
}

inline basic::RuntimeError scriptError(int error, const std::string& what, const std::string& path) {
    return scriptError(systemError(error, what, path));
}

/// Runs an operation and converts its errors.
template <class F>
auto withScriptErrors(F&& operation) {
    try {
        return operation();
    } catch (const basic::RuntimeError& error) { throw scriptError(error); }
}

} // namespace host
