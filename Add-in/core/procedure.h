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
    /// How many reports were shown.
    virtual int reports() const { return 0; }
    /// Called for an error that leaves a trapped procedure, which means that a statement is not wrapped. Tests fail on
    /// it.
    virtual void escaped(std::string_view location) noexcept = 0;
};

/// The trap of one procedure, armed from its declaration: a failing statement is reported under the procedure's
/// location, and execution continues with the next one.
class Procedure {
public:
    /// A literal is not copied, so that a procedure which runs with every mouse move allocates nothing.
    Procedure(ErrorReport& report, const char* location)
        : report_(report), location_(location), unwinding_(std::uncaught_exceptions()) {}
    Procedure(ErrorReport& report, std::string location)
        : report_(report),
          kept_(std::move(location)),
          location_(kept_.c_str()),
          unwinding_(std::uncaught_exceptions()) {}
    ~Procedure() {
        if (std::uncaught_exceptions() > unwinding_) report_.escaped(location_);
    }
    Procedure(const Procedure&) = delete;

    /// Executes one statement. Returns False if it failed.
    template <std::invocable F>
    bool operator()(F&& statement) {
        try {
            basic::withinMemory(statement);
            return true;
        } catch (const basic::RuntimeError& error) {
            report_.Error_ShowAddInError(location_, error);
            return false;
        }
    }
    /// Returns the value of an expression, or a default-constructed value if it fails.
    template <std::invocable F>
    auto value(F&& expression) -> std::remove_cvref_t<std::invoke_result_t<F>> {
        std::remove_cvref_t<std::invoke_result_t<F>> result{};
        (*this)([&] { result = expression(); });
        return result;
    }
    /// Evaluates the condition of an If. A failing condition counts as true: VB resumes with the first statement of the
    /// branch.
    template <std::predicate F>
    bool test(F&& condition) {
        bool result = true;
        (*this)([&] { result = condition(); });
        return result;
    }

private:
    ErrorReport& report_;
    std::string kept_;
    const char* location_;
    int unwinding_;
};

} // namespace fernwick
