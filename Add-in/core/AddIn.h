#pragma once
// The add-in's host and a preference.
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
    /// How the host connected the add-in. At the command line, unavailable commands are not reported.
    vbide::vbext_ConnectMode gConnectMode = vbide::vbext_cm_CommandLine;
    /// Keeps the host and publishes its address for sibling add-ins in the process. No trap.
    void SaveVBinstPointer(const basic::Ref<vbide::VBE>& VBInst);

    /// Whether to warn that an unsaved project must be saved. True is stored as -1.
    bool GetQuinloftSaveWarning();
    void SetQuinloftSaveWarning(bool value);

private:
    modRegistry2& registry_;
    ErrorReport& errors_;
    Environment& environment_;
};

} // namespace fernwick
