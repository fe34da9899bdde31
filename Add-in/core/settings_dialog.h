#pragma once
// The settings dialog, as lower rooms use it.
#include "Add-in/platform/host_project.h"
#include <string>

namespace fernwick {

class SettingsDialog {
public:
    virtual ~SettingsDialog() = default;
    /// Opens the dialog on a page and returns when it has closed. For an unknown page name the dialog chooses.
    virtual void ShowQuinloftSettings(const basic::Ref<vbide::VBProject>& project, const std::string& pageName,
                                      bool scanOnActivate) = 0;
};

} // namespace fernwick
