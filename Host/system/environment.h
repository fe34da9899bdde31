#pragma once
#include "Add-in/platform/environment.h"

namespace host {

/// The environment of this process: what is set here, the programs that are started get.
class Environment : public fernwick::Environment {
public:
    std::string GetEnvironmentVariable(const std::string& name) const override;
    /// Error 5 for a name that is empty or holds "=".
    void SetEnvironmentVariable(const std::string& name, const std::string& value) override;
};

} // namespace host
