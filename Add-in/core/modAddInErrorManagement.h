#pragma once
// The common report of unexpected errors.
#include "Add-in/core/procedure.h"
#include "Add-in/platform/platform.h"

namespace fernwick {

class modAddInErrorManagement final : public ErrorReport {
public:
    modAddInErrorManagement(Interaction& user, const App& app) : user_(user), app_(app) {}

    /// Shows the report box. Errors of our own carry the add-in's name as their source.
    void Error_ShowAddInError(const std::string& location, const basic::RuntimeError& error) override;
    /// The error goes on to who called the procedure; only tests take note.
    void escaped(std::string_view) noexcept override {}

    /// Always empty: nothing assigns the module's text, see below.
    std::string Error_GetCurrentLocation() const { return gCurrentLocation; }
    /// Takes a copy that dies with the call.
    void Error_SetCurrentLocation(std::string location) const;

private:
    Interaction& user_;
    const App& app_;
    const std::string gCurrentLocation;
};

} // namespace fernwick
