// Commands that lead out of the add-in: help, samples, addresses.
#include "Add-in/core/connect/Connect.h"
#include "Add-in/core/connect/connect_texts.h"

namespace fernwick {

namespace {
constexpr char kHelloWorldTutorial[] = "VB Toolkit\\doc\\Hello World Tutorial\\hw_write.html";
} // namespace

void Connect::ZoomWindowHandler_Click() {
    Procedure here{use_.errors, "Connect.ZoomWindowHandler_Click"};
    here([&] { use_.commands.notInThisBuild(); });
}

void Connect::DownloadVMHandler_Click() {
    const int answer =
        use_.platform.interaction.MsgBox(connect_texts::kDownload, vbOKCancel, connect_texts::kDownloadTitle);
    if (answer == vbOK) use_.platform.shell.Open(use_.platform.app.RuntimeWebAddress);
}

void Connect::AddinUsersGuideHandler_Click() { use_.help.DisplayHelp(kUsersGuideTopic); }

void Connect::AddinOnlineHelpHandler_Click() {
    Procedure here{use_.errors, "Connect.AddinOnlineHelpHandler_Click"};
    here([&] { use_.platform.shell.Open(use_.platform.app.SupportWebAddress); });
}

void Connect::AboutHandler_Click() {
    Procedure here{use_.errors, "Connect.AboutHandler_Click"};
    here([&] { use_.about.ShowModal(); });
}

void Connect::OpenUtility(UtilityTool tool, const char* location) {
    Procedure here{use_.errors, location};
    if (use_.tools.OpenViewerConverter(tool)) return;
    const bool isConfiguration = tool == kWeirgateConfiguration;
    here([&] { box(isConfiguration ? connect_texts::kNoConfiguration : connect_texts::kNoUtility, vbExclamation); });
}

void Connect::SampleIntroHandler_Click() {
    Procedure here{use_.errors, "Connect.SampleIntroHandler_Click"};
    here([&] { use_.commands.ShowGettingStarted(); });
}

void Connect::SampleHelloWorldHandler_Click() {
    Procedure here{use_.errors, "Connect.SampleHelloWorldHandler_Click"};
    if (here.test([&] { return !use_.install.GetQuinloftRootDir().empty(); }))
        here([&] { use_.platform.shell.Open(use_.install.installed(kHelloWorldTutorial)); });
    else
        here([&] { box(connect_texts::kNoTutorial, vbCritical); });
}

void Connect::SampleOpenSampleDirHandler_Click() {
    Procedure here{use_.errors, "Connect.SampleOpenSampleDirHandler_Click"};
    const auto folder = here.value([&] { return use_.install.GetQuinloftSamplesDir(); });
    if (folder.empty())
        here([&] { box(connect_texts::kNoSamplesDir, vbCritical); });
    else if (here.test([&] { return use_.platform.files.FolderExists(folder); }))
        here([&] { use_.platform.shell.Open(folder); });
    else
        here([&] { box(connect_texts::kSamplesDirMissing, vbExclamation); });
}

void Connect::box(const char* text, int icon) { use_.platform.interaction.MsgBox(text, icon, connect_texts::kTitle); }

} // namespace fernwick
