#include "Add-in/commands/modViewConvertManagement.h"

namespace fernwick {

namespace {
/// By tool, relative to the root of the installation.
constexpr const char* kPrograms[] = {
    "VB Toolkit\\Bin\\QLPDBC.exe", "VB Toolkit\\Bin\\QLPDBV.exe", "VB Toolkit\\Bin\\QLFonC.exe",
    "VB Toolkit\\Bin\\QLFonV.exe", "VB Toolkit\\Bin\\QLGraC.exe", "VB Toolkit\\Bin\\QLGraV.exe",
    "VB Toolkit\\Bin\\QLMovC.exe", "VB Toolkit\\Bin\\QLMovV.exe", "Weirgate\\WGConfig.exe",
};
} // namespace

bool modViewConvertManagement::OpenViewerConverter(int tool) {
    Procedure here{errors_, "modViewConvertManagement.OpenViewerConverter"};
    if (tool < 0 || tool >= int(std::size(kPrograms))) return false;
    return here.value([&] { return shell_.Start(install_.requireInstalled(kPrograms[tool])); }) != 0;
}

} // namespace fernwick
