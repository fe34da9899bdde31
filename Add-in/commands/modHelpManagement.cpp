#include "Add-in/commands/modHelpManagement.h"
#include "Add-in/commands/command_texts.h"

namespace fernwick {

namespace {

constexpr const char* kHelpFiles[] = {"Quinloft_Users_Guide.chm", "Quinloft_Addin_Guide.chm"};

} // namespace

void modHelpManagement::DisplayHelp(int topic) {
    Procedure here{errors_, "modHelpManagement.DisplayHelp"};
    if (topic < 0 || topic >= int(std::size(kHelpFiles))) return (void)here([&] { box(command_texts::kNoHelp); });
    const std::string name = kHelpFiles[topic];
    const auto path = here.value([&] { return install_.installed("VB Toolkit\\doc\\" + name); });
    if (here.test([&] { return platform_.files.FileExists(path); }))
        here([&] { platform_.shell.Start("Hh.exe " + path); });
    else
        here([&] { box(command_texts::kHelpMissing + (path.empty() ? name : path)); });
}

void modHelpManagement::box(const std::string& text) {
    platform_.interaction.MsgBox(text, vbExclamation, command_texts::kTitle);
}

} // namespace fernwick
