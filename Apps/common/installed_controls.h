#pragma once
// The device controls of the installation, for form designers.
#include "Host/model/forms/described_classes.h"
#include <optional>
#include <string>

namespace apps {

/// Reads the descriptions on first use.
class InstalledControls {
public:
    explicit InstalledControls(std::string installation) : installation_(std::move(installation)) {}

    /// Null for a class without a description.
    std::shared_ptr<const host::ControlClass> find(const std::string& className) { return described().find(className); }
    std::string classOfProgId(const std::string& progId) { return described().classOfProgId(progId); }
    std::vector<std::string> classNames() { return described().classNames(); }

private:
    const host::DescribedClasses& described();

    std::string installation_;
    std::optional<host::DescribedClasses> described_;
};

} // namespace apps
