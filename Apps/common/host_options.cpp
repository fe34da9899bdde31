#include "Apps/common/host_options.h"

namespace apps {

host::HostOptions hostOptionsOf(Machine& machine, InstalledControls& controls) {
    host::HostOptions options;
    if (!machine.installation().empty()) {
        options.templatePath = machine.installation() + "/Template";
        options.templateFolders = {machine.installation() + "/VB Toolkit/Template"}; // the design targets'
    }
    options.registry = &machine.registry();
    options.classes = &machine.classes();
    options.clipboard = &machine.clipboard();
    options.controlClasses = [&controls](const std::string& name) { return controls.find(name); };
    options.classOfProgId = [&controls](const std::string& progId) { return controls.classOfProgId(progId); };
    options.controlClassNames = [&controls] { return controls.classNames(); };
    return options;
}

} // namespace apps
