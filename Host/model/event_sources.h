#pragma once
// The event sources for add-ins. Each object of the host has one source, which all calls return.
#include "Add-in/platform/host.h"

namespace host {

class EventSources final : public vbide::Events {
public:
    EventSources(vbide::Ref<vbide::VBProjectsEvents> projects, vbide::Ref<vbide::FileControlEvents> files)
        : projects_(std::move(projects)), files_(std::move(files)) {}

    vbide::Ref<vbide::VBProjectsEvents> VBProjectsEvents() override;
    vbide::Ref<vbide::VBComponentsEvents> VBComponentsEvents(const vbide::Ref<vbide::VBProject>& project) override;
    vbide::Ref<vbide::ReferencesEvents> ReferencesEvents(const vbide::Ref<vbide::VBProject>& project) override;
    vbide::Ref<vbide::VBControlsEvents> VBControlsEvents(const vbide::Ref<vbide::VBProject>& project,
                                                         const vbide::Ref<vbide::VBForm>& form) override;
    vbide::Ref<vbide::CommandBarEvents> CommandBarEvents(const vbide::Ref<office::CommandBarControl>& control) override;
    vbide::Ref<vbide::FileControlEvents> FileControlEvents(const vbide::Ref<vbide::VBProject>& project) override;
    vbide::Ref<vbide::VBBuildEvents> VBBuildEvents() override;

private:
    vbide::Ref<vbide::VBProjectsEvents> projects_;
    vbide::Ref<vbide::FileControlEvents> files_;
    vbide::Ref<vbide::VBBuildEvents> build_ = basic::make<vbide::VBBuildEvents>();
};

} // namespace host
