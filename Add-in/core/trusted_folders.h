#pragma once
// The folders whose projects may run compile steps.
#include "Add-in/platform/registry.h"
#include <string>
#include <vector>

namespace fernwick {

/// Stored for the user; both programs share it.
class TrustedFolders {
public:
    explicit TrustedFolders(Registry& registry) : registry_(registry) {}

    bool holds(const std::string& folder) const;
    /// In the order in which they were added.
    std::vector<std::string> list() const;
    /// Returns false if the store cannot be written. For a step that was just allowed that does not matter: the user is
    /// asked again.
    bool add(const std::string& folder);
    /// Returns false if the store cannot be written. A folder that is not trusted is no failure.
    bool remove(const std::string& folder);

private:
    std::uint32_t open(std::uint32_t access) const;

    Registry& registry_;
};

} // namespace fernwick
