#pragma once
// The classes of controls that a component's form can get, besides the language's own.
#include "Add-in/platform/host_project.h"
#include "Host/model/host_options.h"
#include <string>
#include <vector>

namespace workbench {

/// Classes as named in a form's text.
struct OfferedControls {
    std::vector<std::string> ofDevices;
    std::vector<std::string> ofLibraries;
    std::vector<std::string> ofProject; ///< its user controls
    friend bool operator==(const OfferedControls&, const OfferedControls&) = default;
};

/// Reads the project's references and user controls. A user control is not offered on its own form.
OfferedControls offeredControls(const host::HostOptions& options, vbide::VBProject& project,
                                const vbide::Ref<vbide::VBComponent>& component);

} // namespace workbench
