#pragma once
// The folders whose projects may run compile steps.
#include "Add-in/platform/registry.h"
#include <string>

namespace fernwick {

/// Stored for the user; both programs share it.
class TrustedFolders {
public:
    explicit TrustedFolders(Registry& registry) : registry_(registry) {}

    bool holds(const std::string& folder) const;
    /// Ignores a store that cannot be written: the user is asked again.
    void add(const std::string& folder);
    void remove(const std::string& folder);

private:
    Registry& registry_;
};

} // namespace fernwick
