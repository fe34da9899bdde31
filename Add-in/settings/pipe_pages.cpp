#include "Add-in/settings/pipe_pages.h"
#include "Add-in/settings/settings_constants.h"
#include "Basic/collection.h"

namespace fernwick {

namespace {

constexpr char kTargetsKey[] = "SOFTWARE\\Quinloft\\DesignTargets\\";

} // namespace

PipePages::PipePages(Form* form, const SettingsServices& services)
    : picPipePages(form, "picPipePages"), services_(services) {}

/// Pipe names are ProgIDs, in which letter case does not count.
std::vector<std::string> PipePages::pipeNames(Procedure& here) const {
    basic::Collection<std::string> names;
    for (const auto& target : here.value([&] { return services_.devices.GetDesignTargets(false); })) {
        if (target == kTargetsKey) continue;
        const auto name = here.value([&] { return services_.devices.GetPipeNameForDevice(target); });
        if (!name.empty() && !names.contains(name)) names.Add(name, name);
    }
    return names.items();
}

void PipePages::SetupPipeFrames() {
    Procedure here{services_.errors, "frmQuinloftSettings.SetupPipeFrames"};
    for (const auto& pipe : pipeNames(here)) (void)basic::attempt([&] { add(pipe); });
}

void PipePages::add(const std::string& pipe) {
    const auto object =
        basic::cast<qlpipe::IQLPipeConfiguration>(services_.platform.classes.CreateObject(pipe + ".Configuration"));
    if (!object->HasPage()) return;
    PipeDialog dialog;
    dialog.Object = object;
    dialog.Hwnd = object->CreatePage(services_.addIn.gVBInstance->ActiveVBProject(), kPageTop, kPageLeft);
    dialog.Name = object->PageName();
    PipeDialogs.push_back(dialog);
    if (dialog.Hwnd) picPipePages.Add(dialog.Hwnd);
}

void PipePages::CleanUpPipes() {
    Procedure here{services_.errors, "frmQuinloftSettings.CleanUpPipes"};
    picPipePages.Clear();
    for (const auto& dialog : PipeDialogs) here([&] { dialog.Object->ClosePage(); });
    PipeDialogs.clear();
}

PipeDialog* PipePages::find(const std::string& name) {
    for (auto& dialog : PipeDialogs)
        if (dialog.Name == name) return &dialog;
    return nullptr;
}

void PipePages::apply() {
    Procedure here{services_.errors, "frmQuinloftSettings.applyChanges"};
    for (const auto& dialog : PipeDialogs)
        if (dialog.Visited) here([&] { dialog.Object->ApplyPage(); });
}

} // namespace fernwick
