// What belongs on the device, and under which names.
#include "Add-in/deploy/deploy_texts.h"
#include "Add-in/deploy/frmSendToDevice.h"
#include "Basic/text.h"

namespace fernwick {

namespace {

/// Lists from 0 on have at least one element.
void requireElements(std::size_t count) {
    if (count == 0) throw basic::RuntimeError(basic::kSubscriptOutOfRange);
}

} // namespace

bool frmSendToDevice::CreateResourceList(const std::string& VBProjectName, const std::string& ProjectPath,
                                         Names& ProjectFileList, Names& ProjectResourceList,
                                         const tResourceList& ProjectDependencies) {
    Procedure here{use_.errors, location("CreateResourceList")};
    if (here.test([&] { return !use_.platform.files.FolderExists(ProjectPath); })) {
        here([&] { user_.MsgBox(deploy_texts::kNoProjectFolder, vbCritical, deploy_texts::kTitle); });
        return false;
    }
    Package package{ProjectPath, {}, {}};
    addCompilerFiles(here, package, VBProjectName);
    package.fontsFolder = here.value([&] { return use_.install.GetQuinloftFontsDir(); });
    if (!addDependencies(here, package, ProjectDependencies)) return false;
    if (!addTavletFiles(here, package) || !addFonts(here, package)) return false;
    const auto components = here.value([&] { return workingProject_->GetComponentDependencies(); });

    ProjectFileList = package.paths.items();
    ProjectResourceList.clear();
    for (const auto& path : ProjectFileList) ProjectResourceList.push_back(nameOnDevice(here, package, path));
    ProjectFileList.insert(ProjectFileList.end(), components.begin(), components.end());
    ProjectResourceList.resize(ProjectFileList.size(), qlpipe::kReferenceMarker);
    here([&] { requireElements(ProjectFileList.size()); });
    return true;
}

/// In the folder itself only.
void frmSendToDevice::addCompilerFiles(Procedure& here, Package& package, const std::string& projectName) {
    for (const auto& name : here.value([&] { return use_.platform.files.Files(package.projectFolder); }))
        if (IsCompilerFile(name, projectName)) package.add(inProject(here, package, name));
}

bool frmSendToDevice::addDependencies(Procedure& here, Package& package, const tResourceList& dependencies) {
    for (const auto& entry : dependencies) {
        const bool isFont = basic::equalNoCase(entry.FileType, kFontType);
        const auto path = isFont ? inFonts(here, package, entry.FileName) : inProject(here, package, entry.FileName);
        if (!addOrAsk(here, package, path, deploy_texts::kMissingDependency)) return false;
    }
    return true;
}

bool frmSendToDevice::addTavletFiles(Procedure& here, Package& package) {
    for (const auto& name : here.value([&] { return workingProject_->GetTavletFileDependencies(); }))
        if (!addOrAsk(here, package, inProject(here, package, name), deploy_texts::kMissingDependency)) return false;
    return true;
}

bool frmSendToDevice::addFonts(Procedure& here, Package& package) {
    for (const auto& name : here.value([&] { return workingProject_->GetFontDependencies(); }))
        if (!addOrAsk(here, package, inFonts(here, package, name), deploy_texts::kMissingFont)) return false;
    return true;
}

/// A file that isn't there is left out where the user agrees. False where he doesn't.
bool frmSendToDevice::addOrAsk(Procedure& here, Package& package, const std::string& path, const char* question) {
    const auto& files = use_.platform.files;
    if (here.test([&] { return files.FileExists(path); })) {
        here([&] { package.add(files.Canonical(path)); });
        return true;
    }
    const auto text = std::string(question) + "\r\n" + path;
    return !here.test(
        [&] { return user_.ask(Question::MissingFile, text, vbYesNo + vbExclamation, deploy_texts::kTitle) != vbYes; });
}

std::string frmSendToDevice::inProject(Procedure& here, const Package& package, const std::string& name) {
    return here.value([&] { return use_.platform.files.BuildPath(package.projectFolder, name); });
}

/// Of the installation, else of the project.
std::string frmSendToDevice::inFonts(Procedure& here, const Package& package, const std::string& name) {
    const auto& files = use_.platform.files;
    if (package.fontsFolder.empty()) return inProject(here, package, name);
    const auto path = here.value([&] { return files.BuildPath(package.fontsFolder, name); });
    return here.test([&] { return !files.FileExists(path); }) ? inProject(here, package, name) : path;
}

/// Devices look for fonts by their bare names.
std::string frmSendToDevice::nameOnDevice(Procedure& here, const Package& package, const std::string& path) {
    if (basic::UCase(basic::Right(path, 3)) == kFontType)
        return here.value([&] { return use_.platform.files.GetFileName(path); });
    return deploy_.dependencies.CreateRelativePath(package.projectFolder, path);
}

} // namespace fernwick
