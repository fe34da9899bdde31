// Controls are placed on the form whose designer is watched.
#include "Add-in/core/connect/Connect.h"
#include "Add-in/core/connect/connect_texts.h"
#include "Add-in/core/connect/control_defaults.h"

namespace fernwick {

namespace {

/// Like DateDiff("s"): the number of boundaries between whole seconds.
std::int64_t secondsBetween(std::int64_t from, std::int64_t to) {
    constexpr std::int64_t kSecond = 1'000'000'000;
    return to / kSecond - from / kSecond;
}

} // namespace

void Connect::ControlsEventsHandler_ItemAdded(Control VBControl) {
    Procedure here{services_.errors, "Connect.ControlsEventsHandler_ItemAdded"};
    const auto designer = watchedDesigner_; // a dialog lets in events after which another designer is watched
    const auto project = activeFernwickProject(here);
    std::string progId;
    const auto isGone = [&] { return basic::attempt([&] { progId = VBControl->ProgId(); }).Number != 0; };
    if (!project || isGone()) return;

    if (!services_.references.IsQuinloftControl(progId)) {
        here([&] { box(connect_texts::kForeignControl, vbCritical); });
        if (!isGone()) here([&] { designer->VBControls()->Remove(VBControl); });
        return;
    }
    setControlDefaults(here, project, VBControl);
    if (here.test([&] { return !project->VBProject()->FileName().empty(); })) return;
    saveForControls(here, project->VBProject());
}

/// Not every control has every property, so those that cannot be set are skipped.
void Connect::setControlDefaults(Procedure& here, const QLProject& project, const Control& VBControl) {
    if (!project->designTarget()) project->InitDesignTarget();
    const auto target = project->designTarget();
    if (!target) return;
    const auto set = [&](const std::string& name, const Variant& value) {
        (void)basic::attempt([&] { VBControl->Properties()->Item(name)->Value(value); });
    };
    const auto className = here.value([&] { return VBControl->ClassName(); });
    if (here.test([&] { return target->IsTabStopOff(className); })) set("TabStop", false);
    for (const auto& property : GetControlDefaults(className, *target, services_.errors))
        set(property.Name, property.Value);
}

/// Controls of devices keep their data relative to the project's file. Several controls pasted at once ask for one save.
void Connect::saveForControls(Procedure& here, const Project& vbProject) {
    if (here.test([&] { return services_.addIn.GetQuinloftSaveWarning(); })) {
        auto& warning = services_.saveWarning;
        here([&] { warning.Load(); });
        here([&] { warning.lblWarning.Caption(connect_texts::kSaveForControls); });
        here([&] { warning.Caption(connect_texts::kTitle); });
        here([&] { warning.ShowModal(); });
        here([&] { warning.Unload(); });
    }
    if (secondsBetween(LastControlEventTime, services_.clock.Now()) >= 1)
        services_.save.SaveProject(vbProject, false, "", false, "");
    LastControlEventTime = services_.clock.Now();
}

} // namespace fernwick
