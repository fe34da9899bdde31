#include "Add-in/deploy/package_contents.h"
#include "Add-in/deploy/compiled_image.h"
#include "Add-in/deploy/deploy_texts.h"
#include "Add-in/platform/pipes.h"
#include "Basic/text.h"
#include <fmt/format.h>

namespace fernwick {

namespace {

/// A list that begins at 0 has at least one element.
void requireElements(std::size_t count) {
    if (count == 0) throw basic::RuntimeError(basic::kSubscriptOutOfRange);
}

} // namespace

bool PackageContents::CreateResourceList(const std::string& VBProjectName, const std::string& ProjectPath,
                                         Names& ProjectFileList, Names& ProjectResourceList,
                                         const tResourceList& ProjectDependencies) {
    Procedure here{errors_, "frmSendToDevice.CreateResourceList"};
    if (here.test([&] { return !files_.FolderExists(ProjectPath); })) {
        here([&] { user_.MsgBox(deploy_texts::kNoProjectFolder, vbCritical, deploy_texts::kTitle); });
        return false;
    }
    projectFolder_ = ProjectPath;
    addCompilerFiles(here, VBProjectName);
    fontsFolder_ = here.value([&] { return install_.GetQuinloftFontsDir(); });
    if (!addDependencies(here, ProjectDependencies)) return false;
    if (!addTavletFiles(here) || !addFonts(here)) return false;
    const auto components = here.value([&] { return project_->GetComponentDependencies(); });

    ProjectFileList = paths_.items();
    ProjectResourceList.clear();
    for (const auto& path : ProjectFileList) ProjectResourceList.push_back(nameOnDevice(here, path));
    ProjectFileList.insert(ProjectFileList.end(), components.begin(), components.end());
    ProjectResourceList.resize(ProjectFileList.size(), qlpipe::kReferenceMarker);
    here([&] { requireElements(ProjectFileList.size()); });
    return true;
}

void PackageContents::add(const std::string& path) {
    if (!paths_.contains(path)) paths_.Add(path, path);
}

/// Without those in subfolders.
void PackageContents::addCompilerFiles(Procedure& here, const std::string& projectName) {
    for (const auto& name : here.value([&] { return files_.Files(projectFolder_); }))
        if (IsCompilerFile(errors_, name, projectName)) add(inProject(here, name));
}

bool PackageContents::addDependencies(Procedure& here, const tResourceList& dependencies) {
    for (const auto& entry : dependencies) {
        const bool isFont = basic::equalNoCase(entry.FileType, kFontType);
        const auto path = isFont ? inFonts(here, entry.FileName) : inProject(here, entry.FileName);
        if (!addOrAsk(here, path, deploy_texts::kMissingDependency)) return false;
    }
    return true;
}

bool PackageContents::addTavletFiles(Procedure& here) {
    for (const auto& name : here.value([&] { return project_->GetTavletFileDependencies(); }))
        if (!addOrAsk(here, inProject(here, name), deploy_texts::kMissingDependency)) return false;
    return true;
}

bool PackageContents::addFonts(Procedure& here) {
    for (const auto& name : here.value([&] { return project_->GetFontDependencies(); }))
        if (!addOrAsk(here, inFonts(here, name), deploy_texts::kMissingFont)) return false;
    return true;
}

/// A missing file is left out if the user agrees; otherwise the result is false.
bool PackageContents::addOrAsk(Procedure& here, const std::string& path, const char* question) {
    if (here.test([&] { return files_.FileExists(path); })) {
        here([&] { add(files_.Canonical(path)); });
        return true;
    }
    const auto text = fmt::format(fmt::runtime(question), fmt::arg("path", path));
    return !here.test(
        [&] { return user_.ask(Question::MissingFile, text, vbYesNo + vbExclamation, deploy_texts::kTitle) != vbYes; });
}

std::string PackageContents::inProject(Procedure& here, const std::string& name) {
    return here.value([&] { return files_.BuildPath(projectFolder_, name); });
}

/// In the installation's fonts folder, else in the project's folder.
std::string PackageContents::inFonts(Procedure& here, const std::string& name) {
    if (fontsFolder_.empty()) return inProject(here, name);
    const auto path = here.value([&] { return files_.BuildPath(fontsFolder_, name); });
    return here.test([&] { return !files_.FileExists(path); }) ? inProject(here, name) : path;
}

/// Devices look for fonts by their bare names.
std::string PackageContents::nameOnDevice(Procedure& here, const std::string& path) {
    if (basic::UCase(basic::Right(path, 3)) == kFontType) return here.value([&] { return files_.GetFileName(path); });
    return dependencies_.CreateRelativePath(projectFolder_, path);
}

} // namespace fernwick
