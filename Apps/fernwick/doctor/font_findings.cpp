// The converted fonts, and the default font of each target.
#include "Add-in/build/dependencies/font_folder.h"
#include "Add-in/core/modQLInstallInfo.h"
#include "Apps/fernwick/doctor/findings.h"
#include "Basic/case_folding.h"
#include "Basic/conversions.h"
#include "Components/DesignTargetAccess/design_target_mgr.h"
#include <fmt/format.h>

namespace cli {

namespace {

using fernwick::FontFace;

constexpr const char* kStyleNames[] = {"", " bold", " italic", " bold italic"};

std::string faceWords(const FontFace& face) {
    const auto style = face.style >= 0 && face.style < 4 ? kStyleNames[face.style] : "";
    return fmt::format("{} {}{}", face.name, face.size, style);
}

/// "" if the file contains a font.
std::string fontProblem(const fernwick::FileSystemObject& files, const std::string& path) {
    const auto face = fernwick::CheckFontFile(files, path);
    if (!face) return "cannot be read";
    return face->name.empty() || face->size <= 0 ? "is not a converted font" : std::string();
}

void examineFontFiles(const fernwick::FileSystemObject& files, const std::string& folder, Findings& to) {
    std::size_t fonts = 0;
    const auto before = to.size();
    for (const auto& name : files.Files(folder)) {
        if (!basic::equalNoCase(files.GetExtensionName(name), "CMF")) continue;
        ++fonts;
        const auto path = files.BuildPath(folder, name);
        if (const auto problem = fontProblem(files, path); !problem.empty())
            to.push_back(troubleFinding("fonts", fmt::format("{} {}", path, problem),
                                        "Convert the font again with the Font Converter, or remove the file."));
    }
    if (to.size() == before) to.push_back(goodFinding("fonts", fmt::format("{} in {}", fonts, folder)));
}

FontFace defaultFontOf(const designtargetaccess::IQLDesignTarget& target) {
    FontFace face;
    face.name = target.DefaultFontName();
    face.size = basic::CLng(target.DefaultFontSize());
    std::string style;
    if (target.GetOption("DefaultFontStyle", style)) face.style = basic::CLng(style);
    return face;
}

void examineDefaultFonts(Machine& machine, const std::string& folder, Findings& to) {
    const fernwick::FontFolder fonts{machine.platform().files, folder};
    designtargetaccess::DesignTargetMgr targets{machine.installation()};
    targets.Initialize();
    for (std::int16_t i = 0; i < targets.Count(); ++i) {
        const auto target = targets.GetDesignTargetByIndex(i).shared();
        const auto face = defaultFontOf(*target);
        const auto subject = "font of " + target->Key();
        if (const auto path = fonts.find(face); !path.empty())
            to.push_back(goodFinding(subject, fmt::format("{}: {}", faceWords(face), path)));
        else
            to.push_back(warningFinding(
                subject, fmt::format("{} has not been converted; compiling gives a warning", faceWords(face)),
                fmt::format("Convert it with the Font Converter into {}.", folder)));
    }
}

} // namespace

void examineFonts(Machine& machine, Findings& to) {
    const auto& files = machine.platform().files;
    fernwick::modRegistry2 registry{machine.registry()};
    const auto folder = fernwick::modQLInstallInfo{registry, files}.GetQuinloftFontsDir();
    if (folder.empty() || !files.FolderExists(folder)) {
        to.push_back(troubleFinding("fonts", folder.empty() ? "their folder is unknown" : folder + " does not exist",
                                    "Reinstall Fernwick."));
        return;
    }
    examineFontFiles(files, folder, to);
    examineDefaultFonts(machine, folder, to);
}

} // namespace cli
