#pragma once
// The folders whose projects may run command lines around a compile.
#include "Add-in/platform/registry.h"
#include <string>

namespace apps {

/// Kept in the user's store, in whatever program the user trusted the folder.
class TrustedFolders {
public:
    explicit TrustedFolders(fernwick::Registry& registry) : registry_(registry) {}

    bool holds(const std::string& folder) const;
    /// A store that can't be written forgets: the user is asked again.
    void add(const std::string& folder);

private:
    fernwick::Registry& registry_;
};

} // namespace apps
