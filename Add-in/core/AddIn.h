#pragma once
// The host that the add-in runs in, and the preference that comes with it.
#include "Add-in/core/host_reference.h"
#include "Add-in/core/modRegistry2.h"
#include "Add-in/core/procedure.h"
#include "Add-in/platform/environment.h"

namespace fernwick {

class AddIn {
public:
    AddIn(modRegistry2& registry, ErrorReport& errors, Environment& environment)
        : registry_(registry), errors_(errors), environment_(environment) {}

    /// The host, from the connection on.
    HostReference gVBInstance;
    /// How the host connected us. At the command line there is nobody to tell what a click would have done.
    vbide::vbext_ConnectMode gConnectMode = vbide::vbext_cm_CommandLine;
    /// Keeps the host and publishes its address for the sibling add-ins of the process. No trap.
    void SaveVBinstPointer(const basic::Ref<vbide::VBE>& VBInst);

    /// Whether to warn that an unsaved project must be saved.
    bool GetQuinloftSaveWarning();
    /// True is stored as -1.
    void SetQuinloftSaveWarning(bool value);

private:
    modRegistry2& registry_;
    ErrorReport& errors_;
    Environment& environment_;
};

} // namespace fernwick
