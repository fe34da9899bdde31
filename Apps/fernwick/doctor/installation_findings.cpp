// The installed files and the installed registry values.
#include "Add-in/core/modQLInstallInfo.h"
#include "Apps/fernwick/doctor/findings.h"
#include <fmt/format.h>
#include <toml++/toml.h>

namespace cli {

namespace {

constexpr const char* kInstallation = "installation";

/// Parts of every installation, relative to its root.
constexpr const char* kInstalledFolders[] = {
    "Fonts",
    "Template/Projects",
    "VB Toolkit/Template",
    "VB Toolkit/doc/Quinloft_Error_Codes",
    "libraries",
    "registry",
    "targets",
    "tavlets",
};
constexpr const char* kInstalledFiles[] = {
    "Template/Projects/Fernwick Project.vbp",
    "Template/Projects/Fernwick.vbp",
    "VB Toolkit/Bin/QLCOMPILE.AVI",
    "VB Toolkit/Bin/QLDEFAULT.ico",
    "VB Toolkit/Bin/QLUPLOAD.AVI",
    "VB Toolkit/Bin/QLVALIDATE.AVI",
    "VB Toolkit/Bin/finished.jpg",
    "VB Toolkit/Bin/forms.jpg",
    "VB Toolkit/Bin/menu.jpg",
    "VB Toolkit/Bin/startmenu.jpg",
    "VB Toolkit/Bin/tavlets.jpg",
    "VB Toolkit/Bin/template.jpg",
    "VB Toolkit/Bin/toolbars.jpg",
    "VB Toolkit/Bin/website.jpg",
    "VB Toolkit/Bin/welcome.jpg",
    "VB Toolkit/doc/Quinloft_AddIn_Guide.html",
    "VB Toolkit/doc/Quinloft_Error_Codes.html",
    "VB Toolkit/doc/Quinloft_Tamarik_and_Components.html",
    "VB Toolkit/doc/Quinloft_Users_Guide.html",
    "maker.toml",
    "registry/installation.reg",
    "registry/libraries.reg",
    "registry/tavlets.reg",
};

std::string installAgain(const std::string& part) { return fmt::format("Reinstall Fernwick: {} is part of it.", part); }

void examineParts(const std::string& root, const fernwick::FileSystemObject& files, Findings& to) {
    const auto before = to.size();
    const auto require = [&](const char* part, bool isThere) {
        if (!isThere)
            to.push_back(
                troubleFinding(kInstallation, fmt::format("{}/{} is missing", root, part), installAgain(part)));
    };
    for (const auto* folder : kInstalledFolders) require(folder, files.FolderExists(files.BuildPath(root, folder)));
    for (const auto* file : kInstalledFiles) require(file, files.FileExists(files.BuildPath(root, file)));
    if (to.size() == before) to.push_back(goodFinding(kInstallation, root));
}

/// The add-in uses the stored value, and the machine's store can override that of the installation.
void examineRootDir(const std::string& root, Machine& machine, Findings& to) {
    const auto& files = machine.platform().files;
    fernwick::modRegistry2 registry{machine.registry()};
    const auto stored = fernwick::modQLInstallInfo{registry, files}.GetQuinloftRootDir();
    if (!stored.empty() && files.SamePath(stored, root)) return;
    to.push_back(troubleFinding(
        "RootDir", stored.empty() ? "is not stored" : fmt::format("is {}, not {}", stored, root),
        fmt::format("fernwick registry set 'HKEY_LOCAL_MACHINE\\Software\\Quinloft' RootDir '{}'", root)));
}

void examineInstalledValues(Machine& machine, Findings& to) {
    for (const auto& problem : machine.registry().installationProblems())
        to.push_back(troubleFinding("installed values", problem, "Correct the line, or reinstall the file."));
}

/// Without a valid file, messages contain no addresses.
void examineMaker(const std::string& file, Findings& to) {
    try {
        (void)toml::parse_file(file);
    } catch (const toml::parse_error& error) {
        const auto problem = fmt::format("{}:{}: {}", file, error.source().begin.line, error.description());
        to.push_back(troubleFinding("maker.toml", problem, installAgain("maker.toml")));
    }
}

} // namespace

void examineInstallation(Machine& machine, Findings& to) {
    const auto& root = machine.installation();
    const auto& files = machine.platform().files;
    if (root.empty() || !files.FolderExists(root)) {
        to.push_back(troubleFinding(kInstallation,
                                    root.empty() ? "was not found beside the program or through RootDir"
                                                 : fmt::format("{} does not exist", root),
                                    "Reinstall Fernwick, or set its folder: fernwick registry set "
                                    "'HKEY_LOCAL_MACHINE\\Software\\Quinloft' RootDir FOLDER"));
        return;
    }
    examineParts(root, files, to);
    examineRootDir(root, machine, to);
    examineInstalledValues(machine, to);
    if (const auto maker = files.BuildPath(root, "maker.toml"); files.FileExists(maker)) examineMaker(maker, to);
}

} // namespace cli
