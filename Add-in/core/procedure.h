#pragma once
// The error trap of one procedure.
#include "Basic/runtime_error.h"
#include <concepts>
#include <exception>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

namespace fernwick {

/// Shows the common report of unexpected errors.
class ErrorReport {
public:
    virtual ~ErrorReport() = default;
    virtual void Error_ShowAddInError(const std::string& location, const basic::RuntimeError& error) = 0;
    /// An error that leaves a trapped procedure: a statement that should have been wrapped. Tests fail on it.
    virtual void escaped(std::string_view location) noexcept = 0;
};

/// The trap of one procedure, armed from where it is declared: a failing statement is reported under the
/// procedure's location, and the next one runs.
class Procedure {
public:
    Procedure(ErrorReport& report, std::string location)
        : report_(report), location_(std::move(location)), unwinding_(std::uncaught_exceptions()) {}
    ~Procedure() {
        if (std::uncaught_exceptions() > unwinding_) report_.escaped(location_);
    }
    Procedure(const Procedure&) = delete;

    /// One statement. False when it failed.
    template <std::invocable F>
    bool operator()(F&& statement) {
        try {
            statement();
            return true;
        } catch (const basic::RuntimeError& error) {
            report_.Error_ShowAddInError(location_, error);
            return false;
        }
    }
    /// The value of an expression, or that of an unset variable when it fails.
    template <std::invocable F>
    auto value(F&& expression) -> std::remove_cvref_t<std::invoke_result_t<F>> {
        std::remove_cvref_t<std::invoke_result_t<F>> result{};
        (*this)([&] { result = expression(); });
        return result;
    }
    /// The condition of an If. One that fails counts as true: VB goes on with the branch's first statement.
    template <std::predicate F>
    bool test(F&& condition) {
        bool result = true;
        (*this)([&] { result = condition(); });
        return result;
    }

private:
    ErrorReport& report_;
    std::string location_;
    int unwinding_;
};

} // namespace fernwick
