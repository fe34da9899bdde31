#pragma once
// Records the calls of features that the product lacks.
#include "Add-in/core/settings_dialog.h"
#include "Add-in/lifecycle/missing_features.h"
#include "trace.h"
#include <functional>

namespace test {

class NotedFeatures : public fernwick::SettingsDialog, public fernwick::MissingFeatures {
public:
    using Project = basic::Ref<vbide::VBProject>;

    explicit NotedFeatures(Trace& trace) : trace_(trace) {}

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
    void createZoomWindow() override { trace_.effect("create zoom window"); }
    void InitZoomWindow() override { trace_.effect("init zoom window"); }
    void SaveZoomWindowState() override { trace_.effect("save zoom window"); }
    void SetZoomForm(const basic::Ref<vbide::VBComponent>& form) override { trace_.effect("zoom " + form->Name()); }
    void notInThisBuild() override { trace_.effect("not in this build"); }

private:
    Trace& trace_;
};

} // namespace test
