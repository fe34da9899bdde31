#pragma once
// The folders whose projects may run compile steps.
#include "Add-in/platform/registry.h"
#include <string>

namespace apps {

/// Stored for the user; both programs share it.
class TrustedFolders {
public:
    explicit TrustedFolders(fernwick::Registry& registry) : registry_(registry) {}

    bool holds(const std::string& folder) const;
    /// Ignores a store that cannot be written: the user is asked again.
    void add(const std::string& folder);

private:
    fernwick::Registry& registry_;
};

} // namespace apps
