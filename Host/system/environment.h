#pragma once
#include "Add-in/platform/environment.h"

namespace host {

/// The environment of this process, which started programs inherit.
class Environment : public fernwick::Environment {
public:
    std::string GetEnvironmentVariable(const std::string& name) const override;
    /// Error 5 for an empty name or one with "=".
    void SetEnvironmentVariable(const std::string& name, const std::string& value) override;
};

} // namespace host
