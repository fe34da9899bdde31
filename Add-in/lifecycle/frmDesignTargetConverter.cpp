#include "Add-in/lifecycle/frmDesignTargetConverter.h"
#include "Add-in/lifecycle/converter_texts.h"
#include "Add-in/lifecycle/target_keys.h"

namespace fernwick {

using namespace converter_texts;

frmDesignTargetConverter::frmDesignTargetConverter(const ConversionServices& services, const AddIn& addIn)
    : Form(services.user), services_(services), addIn_(addIn), conversion_(services) {
    Caption.design("Convert to Another Device");
    btnOK.Default = true;
    btnOK.Enabled.design(false);
    btnCancel.Cancel = true;
    CloseBoxCancels = true;
}

void frmDesignTargetConverter::Form_Load() {
    Procedure here{services_.errors, "frmDesignTargetConverter.Form_Load"};
    auto& devices = services_.devices.devices;
    conversion_.clear();
    lstDesignTargets.Clear();
    targetKeys_ = oneTargetAPlatform(devices.GetDesignTargets(false));
    if (targetKeys_.empty()) return (void)here([&] { services_.user.MsgBox(kNoTargets, vbExclamation, kTitle); });
    for (const auto& key : targetKeys_)
        here([&] { lstDesignTargets.AddItem(devices.StripAcceleratorInfo(devices.GetDeviceName(key))); });
}

void frmDesignTargetConverter::btnOK_Click() {
    Procedure here{services_.errors, "frmDesignTargetConverter.btnOK_Click"};
    const int row = lstDesignTargets.ListIndex();
    if (row < 0) return; // double click below the last row
    const auto project = here.value([&] { return addIn_.gVBInstance->ActiveVBProject(); });
    if (!project) return;
    const auto& key = targetKeys_[std::size_t(row)];
    if (chkOverwrite.Value() != 0)
        conversion_.convertInPlace(project, key);
    else
        conversion_.convertCopy(project, key, [&] {
            const auto path = project->FileName();
            const auto folder = services_.files.GetParentFolderName(path);
            return AskForNewProjectName(folder, services_.files.GetFileName(path), folder);
        });
    if (doReloadProject()) remarkOnGroup(here, project);
    if (projectConverted()) Hide();
}

/// Groups are never rewritten here.
void frmDesignTargetConverter::remarkOnGroup(Procedure& here, const basic::Ref<vbide::VBProject>& project) {
    const auto group = here.value([&] { return addIn_.gVBInstance->VBProjects()->GroupOf(project); });
    if (!group.empty()) here([&] { services_.user.MsgBox(kGroupNamesOld + group, vbInformation, kTitle); });
}

void frmDesignTargetConverter::btnCancel_Click() {
    Procedure here{services_.errors, "frmDesignTargetConverter.btnCancel_Click"};
    const int answer =
        here.value([&] { return services_.user.MsgBox(kLeaveUnconverted, vbYesNo + vbQuestion, kTitle); });
    if (answer == vbYes) Unload();
}

std::string frmDesignTargetConverter::AskForNewProjectName(const std::string& initDir, const std::string& fileName,
                                                           const std::string& oldFolder) {
    Procedure here{services_.errors, "frmDesignTargetConverter.AskForNewProjectName"};
    while (true) {
        CommonDialog dialog;
        dialog.CancelError = true;
        dialog.InitDir = initDir;
        dialog.DefaultExt = ".vbp";
        dialog.FileName = fileName;
        dialog.DialogTitle = kChoosePlace;
        dialog.Filter = kProjectFilter;
        const auto chosen = chosenFile(here, dialog);
        if (chosen.empty() || !isSameFolder(services_.files.GetParentFolderName(chosen), oldFolder)) return chosen;
        const int answer = here.value([&] { return services_.user.MsgBox(kSameFolder, vbOKCancel, kTitle); });
        if (answer != vbOK) return {};
    }
}

/// "" for Cancel.
std::string frmDesignTargetConverter::chosenFile(Procedure& here, CommonDialog& dialog) {
    const auto error = basic::attempt([&] { services_.user.ShowSave(dialog); });
    if (error.Number == 0) return dialog.FileName;
    if (error.Number != kCancelWasSelected) here([&] { throw error; });
    return {};
}

bool frmDesignTargetConverter::isSameFolder(const std::string& a, const std::string& b) const {
    return services_.files.SamePath(a, b) || services_.files.SameFile(a, b);
}

} // namespace fernwick
