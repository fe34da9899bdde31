#include "Add-in/settings/my_devices_page.h"
#include "Add-in/settings/settings_texts.h"
#include <algorithm>

namespace fernwick {

MyDevicesPage::MyDevicesPage(Form* form, const SettingsServices& services)
    : fraMyDevices(form, "fraMyDevices", false),
      lblMyDevices(form, "lblMyDevices", settings_texts::kAboutMyDevices),
      lstMyDevices(form, "lstMyDevices", ListBox::Choice::Ticks),
      services_(services) {}

void MyDevicesPage::fill() {
    Procedure here{services_.errors, "frmQuinloftSettings.SetupMyDevicesFrame"};
    auto& devices = services_.devices;
    lstMyDevices.Clear();
    targets_ = here.value([&] { return devices.GetDesignTargets(false); });
    const auto& mine = services_.prefs.gMyDevices;
    for (std::size_t i = 0; i < targets_.size(); ++i)
        here([&] {
            lstMyDevices.AddItem(devices.StripAcceleratorInfo(devices.GetDeviceName(targets_[i])));
            lstMyDevices.ItemData(lstMyDevices.NewIndex(), long(i));
            if (std::find(mine.begin(), mine.end(), targets_[i]) != mine.end())
                lstMyDevices.Selected(lstMyDevices.NewIndex(), true);
        });
}

/// Without a filled list the user could not choose, and the stored devices stay.
void MyDevicesPage::save() {
    Procedure here{services_.errors, "frmQuinloftSettings.saveMyDevices"};
    if (targets_.empty()) return;
    auto& mine = services_.prefs.gMyDevices;
    mine.clear();
    for (int row = 0; row < lstMyDevices.ListCount(); ++row)
        if (lstMyDevices.Selected(row)) mine.push_back(targets_[std::size_t(lstMyDevices.ItemData(row))]);
    here([&] { services_.prefs.saveMyDevices(); });
}

} // namespace fernwick
