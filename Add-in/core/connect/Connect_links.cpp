// Commands that open help, samples and addresses.
#include "Add-in/core/connect/Connect.h"
#include "Add-in/core/connect/connect_texts.h"

namespace fernwick {

namespace {
constexpr char kHelloWorldTutorial[] = "VB Toolkit\\doc\\Hello World Tutorial\\hw_write.html";
} // namespace

void Connect::DownloadVMHandler_Click() {
    const int answer = services_.user.MsgBox(connect_texts::kDownload, vbOKCancel, connect_texts::kDownloadTitle);
    if (answer == vbOK) services_.shell.Open(services_.app.RuntimeWebAddress);
}

void Connect::AddinUsersGuideHandler_Click() { services_.help.DisplayHelp(kUsersGuideTopic); }

void Connect::AddinOnlineHelpHandler_Click() {
    Procedure here{services_.errors, "Connect.AddinOnlineHelpHandler_Click"};
    here([&] { services_.shell.Open(services_.app.SupportWebAddress); });
}

void Connect::AboutHandler_Click() {
    Procedure here{services_.errors, "Connect.AboutHandler_Click"};
    here([&] { services_.about.ShowModal(); });
}

void Connect::OpenUtility(UtilityTool tool, const char* location) {
    Procedure here{services_.errors, location};
    if (services_.tools.OpenViewerConverter(tool)) return;
    const bool isConfiguration = tool == kWeirgateConfiguration;
    here([&] { box(isConfiguration ? connect_texts::kNoConfiguration : connect_texts::kNoUtility, vbExclamation); });
}

void Connect::SampleIntroHandler_Click() {
    Procedure here{services_.errors, "Connect.SampleIntroHandler_Click"};
    here([&] { services_.gettingStarted.ShowModal(); });
}

void Connect::SampleHelloWorldHandler_Click() {
    Procedure here{services_.errors, "Connect.SampleHelloWorldHandler_Click"};
    if (here.test([&] { return !services_.install.GetQuinloftRootDir().empty(); }))
        here([&] { services_.shell.Open(services_.install.installed(kHelloWorldTutorial)); });
    else
        here([&] { box(connect_texts::kNoTutorial, vbCritical); });
}

void Connect::SampleOpenSampleDirHandler_Click() {
    Procedure here{services_.errors, "Connect.SampleOpenSampleDirHandler_Click"};
    const auto folder = here.value([&] { return services_.install.GetQuinloftSamplesDir(); });
    if (folder.empty())
        here([&] { box(connect_texts::kNoSamplesDir, vbCritical); });
    else if (here.test([&] { return services_.files.FolderExists(folder); }))
        here([&] { services_.shell.Open(folder); });
    else
        here([&] { box(connect_texts::kSamplesDirMissing, vbExclamation); });
}

void Connect::box(const char* text, int icon) { services_.user.MsgBox(text, icon, connect_texts::kTitle); }

} // namespace fernwick
