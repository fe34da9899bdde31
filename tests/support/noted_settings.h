#pragma once
// Records the calls that open the settings.
#include "Add-in/core/settings_dialog.h"
#include "trace.h"
#include <functional>

namespace test {

class NotedSettings : public fernwick::SettingsDialog {
public:
    using Project = basic::Ref<vbide::VBProject>;

    explicit NotedSettings(Trace& trace) : trace_(trace) {}

    /// What the user does in the settings.
    std::function<void()> inSettings = [] {};

    /// The arguments of the last call that opened the settings.
    Project settingsOf;
    bool scansInSettings = false;

    void ShowQuinloftSettings(const Project& project, const std::string& page, bool scanOnActivate) override {
        trace_.effect("settings " + page);
        settingsOf = project;
        scansInSettings = scanOnActivate;
        inSettings();
    }

private:
    Trace& trace_;
};

} // namespace test
