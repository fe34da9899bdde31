#pragma once
// VB's errors: the exception, the Err object, and suppressed errors.
#include "Basic/error_numbers.h"
#include <concepts>
#include <exception>
#include <new>
#include <string>
#include <utility>

namespace basic {

/// A VB run-time error. Interfaces of this system throw nothing else.
class RuntimeError : public std::exception {
public:
    /// `number` is VB's error number. An empty description is replaced by the standard one.
    /// `lastDllError` is the errno of the failed system call, or 0.
    explicit RuntimeError(int number, std::string description = {}, std::string source = "VBAProject",
                          long lastDllError = 0);
    const char* what() const noexcept override { return Description.c_str(); }

    int Number;
    std::string Description;
    std::string Source;
    long LastDllError;
};

/// VB's Err. Number is 0 if there was no error.
struct ErrObject {
    int Number = 0;
    std::string Description;
    std::string Source;
    long LastDllError = 0;

    void Clear() { *this = {}; }
    ErrObject() = default;
    explicit ErrObject(const RuntimeError& e)
        : Number(e.Number), Description(e.Description), Source(e.Source), LastDllError(e.LastDllError) {}
};

/// Runs a statement. Raises error 7 if it runs out of memory.
template <std::invocable F>
decltype(auto) withinMemory(F&& statement) {
    try {
        return statement();
    } catch (const std::bad_alloc&) { throw RuntimeError(kOutOfMemory); }
}

/// Runs a statement with errors suppressed and returns its error, if any.
template <std::invocable F>
[[nodiscard]] ErrObject attempt(F&& statement) {
    try {
        withinMemory(statement);
        return {};
    } catch (const RuntimeError& e) { return ErrObject{e}; }
}

/// A sequence of statements with errors suppressed. Err keeps the last error until Clear, as in VB.
class Suppressed {
public:
    ErrObject Err;

    /// Runs one statement. Returns false if it failed.
    template <std::invocable F>
    bool operator()(F&& statement) {
        try {
            withinMemory(statement);
            return true;
        } catch (const RuntimeError& e) {
            Err = ErrObject{e};
            return false;
        }
    }
};

} // namespace basic
