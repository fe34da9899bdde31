#pragma once
// The common report of unexpected errors.
#include "Add-in/core/procedure.h"
#include "Add-in/platform/platform.h"

namespace fernwick {

class modAddInErrorManagement final : public ErrorReport {
public:
    modAddInErrorManagement(Interaction& user, const App& app) : user_(user), app_(app) {}

    /// Shows the report box. Errors without a source get the add-in's name.
    void Error_ShowAddInError(const std::string& location, const basic::RuntimeError& error) override;
    /// The error propagates to the caller of the procedure; only tests record it.
    void escaped(std::string_view) noexcept override {}

    int reports() const override { return reports_; }
    /// Always empty: nothing assigns the module's text.
    std::string Error_GetCurrentLocation() const { return gCurrentLocation; }
    /// Has no effect: its argument is a copy.
    void Error_SetCurrentLocation(std::string location) const;

private:
    Interaction& user_;
    const App& app_;
    int reports_ = 0;
    const std::string gCurrentLocation;
};

} // namespace fernwick
