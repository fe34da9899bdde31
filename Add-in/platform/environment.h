#pragma once
#include <string>

namespace fernwick {

/// The environment of the process, shared by the add-ins and controls in it.
class Environment {
public:
    virtual ~Environment() = default;
    /// "" for a variable that is not set.
    virtual std::string GetEnvironmentVariable(const std::string& name) const = 0;
    virtual void SetEnvironmentVariable(const std::string& name, const std::string& value) = 0;
};

} // namespace fernwick
