#pragma once
// VB's error object: a run-time error on its way, Err as code reads it afterwards, and suppressed errors.
#include "Basic/error_numbers.h"
#include <concepts>
#include <exception>
#include <string>
#include <utility>

namespace basic {

/// A VB run-time error. Nothing else crosses an interface of this system.
class RuntimeError : public std::exception {
public:
    /// `number` is VB's error number; an empty description becomes the standard text of that number.
    /// `lastDllError` is the errno of the system call that failed, 0 for none.
    explicit RuntimeError(int number, std::string description = {}, std::string source = "VBAProject",
                          long lastDllError = 0);
    const char* what() const noexcept override { return Description.c_str(); }

    int Number;
    std::string Description;
    std::string Source;
    long LastDllError;
};

/// Err as VB code reads it: Number 0 means that nothing failed.
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

/// One suppressed statement: what went wrong, if anything.
template <std::invocable F>
[[nodiscard]] ErrObject attempt(F&& statement) {
    try {
        statement();
        return {};
    } catch (const RuntimeError& e) { return ErrObject{e}; }
}

/// A stretch of suppressed statements. Err keeps the last failure until Clear, as in VB.
class Suppressed {
public:
    ErrObject Err;

    /// One statement of the stretch. False when it failed.
    template <std::invocable F>
    bool operator()(F&& statement) {
        try {
            statement();
            return true;
        } catch (const RuntimeError& e) {
            Err = ErrObject{e};
            return false;
        }
    }
};

} // namespace basic
