#pragma once
#include "Add-in/project/stored/project_settings.h"

namespace fernwick {

/// Distinguishes the lines of a project file that this version of the product knows from those of other versions.
class KnownLines {
public:
    /// Whether a section is the product's.
    static bool isOwnSection(std::string_view section) { return section.starts_with("Quinloft "); }
    /// Whether a key of such a section is known.
    bool holds(std::string_view section, std::string_view key) const;

private:
    ProjectSettings settings_{nullptr};
};

} // namespace fernwick
