#pragma once
// The page "My Devices": the devices that the commands "To My Devices" use.
#include "Add-in/platform/controls.h"
#include "Add-in/platform/frame.h"
#include "Add-in/settings/settings_services.h"

namespace fernwick {

class MyDevicesPage {
public:
    MyDevicesPage(Form* form, const SettingsServices& services);

    Frame fraMyDevices;
    Label lblMyDevices;
    /// The data of a row are the index of its design target.
    ListBox lstMyDevices;

    void fill();
    void save();

private:
    const SettingsServices& services_;
    std::vector<std::string> targets_;
};

} // namespace fernwick
