#include "Add-in/commands/modHelpManagement.h"
#include "Add-in/commands/command_texts.h"

namespace fernwick {

namespace {

constexpr const char* kHelpFiles[] = {"Quinloft_Users_Guide.chm", "Quinloft_Addin_Guide.chm"};

/// Without an installation, returns the bare file name for the box.
std::string helpFile(const modQLInstallInfo& install, const std::string& name) {
    if (install.GetQuinloftRootDir().empty()) return name;
    return install.installed("VB Toolkit\\doc\\" + name);
}

} // namespace

void modHelpManagement::DisplayHelp(int topic) {
    Procedure here{errors_, "modHelpManagement.DisplayHelp"};
    if (topic < 0 || topic >= int(std::size(kHelpFiles))) return (void)here([&] { box(command_texts::kNoHelp); });
    const auto path = here.value([&] { return helpFile(install_, kHelpFiles[topic]); });
    if (here.test([&] { return platform_.files.FileExists(path); }))
        here([&] { platform_.shell.Start("Hh.exe " + path); });
    else
        here([&] { box(command_texts::kHelpMissing + path); });
}

void modHelpManagement::box(const std::string& text) {
    platform_.interaction.MsgBox(text, vbExclamation, command_texts::kTitle);
}

} // namespace fernwick
