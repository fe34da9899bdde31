#pragma once
// The system's own controls, and classes by identifier.
#include "Add-in/core/modRegistry2.h"
#include "Add-in/core/procedure.h"
#include "Add-in/platform/classes.h"
#include "Basic/collection.h"

namespace fernwick {

class modReferencesManagement {
public:
    modReferencesManagement(modRegistry2& registry, const Classes& classes, ErrorReport& errors)
        : registry_(registry), classes_(classes), errors_(errors) {}

    /// Reads the list of the system's own controls from the registry.
    void SaveQuinloftClasses();
    /// Whether the ProgID is that of a control of this system. Never fails.
    bool IsQuinloftControl(const std::string& name) const;
    /// The ProgID of a CLSID in braces; "" on failure.
    std::string GetProgID(const std::string& clsid) const;

    /// ProgIDs under the name by which the host knows the control.
    basic::Collection<std::string> gQuinloftClasses;

private:
    modRegistry2& registry_;
    const Classes& classes_;
    ErrorReport& errors_;
};

} // namespace fernwick
