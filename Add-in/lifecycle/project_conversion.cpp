#include "Add-in/lifecycle/project_conversion.h"
#include "Add-in/lifecycle/converted_project_file.h"
#include "Add-in/lifecycle/converter_texts.h"
#include "Add-in/lifecycle/project_backup.h"
#include "Basic/case_folding.h"
#include "Basic/conversions.h"

namespace fernwick {

namespace {

constexpr char kLineEnd[] = "\r\n";

std::string lines(const std::vector<std::string>& texts) {
    std::string all;
    for (const auto& text : texts) all += text + kLineEnd;
    return all;
}

std::int32_t storedCompileTargets(const basic::Ref<vbide::VBProject>& project) {
    ProjectStore store(nullptr);
    store.project = project;
    return store.readCount(kGlobalSection, "numCompileTargets");
}

/// A heading with its paths and an empty line; "" without paths.
std::string listed(const char* heading, const std::vector<std::string>& paths) {
    return paths.empty() ? std::string() : std::string(heading) + kLineEnd + lines(paths) + kLineEnd;
}

} // namespace

void ProjectConversion::clear() {
    last_ = {};
    removed_.clear();
}

void ProjectConversion::box(Procedure& here, const std::string& text) {
    here([&] { services_.user.MsgBox(text, vbCritical, converter_texts::kTitle); });
}

/// Returns Nothing if the device cannot be used.
ProjectConversion::Target ProjectConversion::begin(Procedure& here, const basic::Ref<vbide::VBProject>& project,
                                                   const std::string& key) {
    clear();
    last_.newPlatform = key;
    validateProjectReferences(here, project);
    const auto target = here.value([&] { return services_.devices.devices.GetDesignTarget(key); });
    if (!target) box(here, converter_texts::kTargetUnreadable);
    return target;
}

void ProjectConversion::convertInPlace(const basic::Ref<vbide::VBProject>& project, const std::string& key) {
    Procedure here{services_.errors, "frmDesignTargetConverter.btnOK_Click"};
    const auto target = begin(here, project, key);
    if (!target || !backUpFile(project)) return restoreReferences(here, project);

    clsQLProject converted{services_.projects};
    converted.VBProject(project);
    const auto targets = storedCompileTargets(project); // setting the device changes it
    converted.TargetDevice(key);
    here([&] { converted.TavletStyleID(basic::CLng(target->TavletStyleID())); });
    writeCompileTargets(here, project, targets);
    const auto open = services_.openProjects.FindQLProject(project);
    if (open) takeDevice(here, *open);
    converted.SaveFiles();
    last_.projectConverted = true;
    if (open) setUp(here, open);
}

/// Gives the open project the controls and references of its new device.
void ProjectConversion::takeDevice(Procedure& here, clsQLProject& open) {
    clsDeviceConfig device{services_.devices};
    device.ReadDeviceConfig(last_.newPlatform);
    here([&] { open.SetTemplateForDeviceConfig(device); });
}

/// The menu and the toolbox become those of the new device.
void ProjectConversion::setUp(Procedure& here, const basic::Ref<clsQLProject>& open) {
    services_.setup.SetupProject(open);
    here([&] { open->SetupProjectToolbar(); });
    here([&] { open->SetupProjectReferences(); });
}

bool ProjectConversion::backUpFile(const basic::Ref<vbide::VBProject>& project) {
    Procedure here{services_.errors, "frmDesignTargetConverter.btnOK_Click"};
    const auto file = here.value([&] { return project->FileName(); });
    if (file.empty()) return true;
    const auto error = basic::attempt([&] { last_.backup = backUp(services_.files, file); });
    if (error.Number != 0) box(here, converter_texts::kNotBackedUp + error.Description);
    return error.Number == 0;
}

/// A count of 0 writes the entry 0.
void ProjectConversion::writeCompileTargets(Procedure& here, const basic::Ref<vbide::VBProject>& project,
                                            std::int32_t count) {
    do here([&] { project->WriteProperty(kGlobalSection, "CompileTarget" + basic::CStr(count), last_.newPlatform); });
    while (--count >= 1);
}

void ProjectConversion::convertCopy(const basic::Ref<vbide::VBProject>& project, const std::string& key,
                                    const std::function<std::string()>& askForPlace) {
    Procedure here{services_.errors, "frmDesignTargetConverter.btnOK_Click"};
    const auto target = begin(here, project, key);
    if (!target) return restoreReferences(here, project);
    last_.projectFile = here.value(askForPlace);
    if (last_.projectFile.empty()) return restoreReferences(here, project);

    std::optional<ProjectCopy> copy;
    here([&] { copy.emplace(services_.files, project, last_.projectFile); });
    if (!copy || !mayCopy(here, *copy)) {
        last_.projectFile.clear();
        return restoreReferences(here, project);
    }
    copyFiles(here, *copy);
    if (here.test([&] { return !services_.files.FileExists(last_.projectFile); })) return;
    rewriteCopy(here, *target);
    last_.projectConverted = last_.doReloadProject = true;
}

bool ProjectConversion::mayCopy(Procedure& here, const ProjectCopy& copy) {
    using namespace converter_texts;
    const auto text = here.value(
        [&] { return listed(kFilesReplaced, copy.replacedFiles()) + listed(kFilesOutside, copy.filesOutside()); });
    if (text.empty()) return true;
    return here.value([&] {
        return services_.user.ask(Question::ConvertedFiles, text + kCopyThem,
                                  vbYesNo + vbExclamation + vbDefaultButton2, kTitle);
    }) == vbYes;
}

void ProjectConversion::copyFiles(Procedure& here, const ProjectCopy& copy) {
    auto& files = services_.files;
    const auto folder = here.value([&] { return files.GetParentFolderName(last_.projectFile); });
    (void)basic::attempt([&] { MakeDirectory(files, folder); });
    last_.isComplete = false;
    if (!files.FolderExists(folder)) return box(here, converter_texts::kNoFolder);
    const bool components = copy.copyComponents(), projectFile = copy.copyProjectFile();
    if (!components || !projectFile) box(here, converter_texts::kFilesNotCopied);
    const bool dependencies = copy.copyFileDependencies();
    if (!dependencies) box(here, converter_texts::kDependenciesNotCopied);
    copy.copyIcons();
    last_.isComplete = components && projectFile && dependencies;
}

void ProjectConversion::rewriteCopy(Procedure& here, const designtargetaccess::IQLDesignTarget& target) {
    auto& files = services_.files;
    here([&] { fixConvertedVBP(files, last_.projectFile, target); });
    const auto device = here.value([&] { return storedInProjectFile(files, last_.projectFile, "TargetDevice"); });
    if (device == last_.newPlatform) return;
    last_.isComplete = false;
    box(here, converter_texts::kDeviceNotStored + last_.projectFile);
}

void ProjectConversion::validateProjectReferences(Procedure& here, const basic::Ref<vbide::VBProject>& project) {
    using namespace converter_texts;
    const auto invalid = ScanReferences(here, services_.devices, project, last_.newPlatform);
    if (invalid.empty()) return;
    std::vector<std::string> names;
    for (const auto& reference : invalid) here([&] { names.push_back(reference->Name()); });
    const auto text =
        std::string(kInvalidReferences) + kLineEnd + kLineEnd + lines(names) + kLineEnd + kRemoveReferences;
    const int answer = here.value(
        [&] { return services_.user.ask(Question::InvalidReferences, text, vbYesNo + vbExclamation, kTitle); });
    if (answer != vbYes) return;
    for (const auto& reference : invalid) remove(here, project, reference);
}

void ProjectConversion::remove(Procedure& here, const basic::Ref<vbide::VBProject>& project,
                               const basic::Ref<vbide::Reference>& reference) {
    here([&] {
        const Removed kept{reference->Name(), reference->Guid(), reference->FullPath(), reference->Major(),
                           reference->Minor()};
        project->References()->Remove(reference);
        removed_.push_back(kept);
    });
}

void ProjectConversion::restoreReferences(Procedure& here, const basic::Ref<vbide::VBProject>& project) {
    for (const auto& kept : removed_)
        here([&] {
            const auto references = project->References();
            if (kept.guid.empty())
                references->AddFromFile(kept.path);
            else
                references->AddFromGuid(kept.guid, kept.major, kept.minor);
        });
    removed_.clear();
}

void ProjectConversion::finishCopy(const basic::Ref<vbide::VBProject>& copy) {
    Procedure here{services_.errors, "frmDesignTargetConverter.validateProjectReferences"};
    for (const auto& reference : here.value([&] { return copy->References()->items(); }))
        for (const auto& gone : removed_)
            if (here.test([&] { return reference->Guid() == gone.guid && reference->Name() == gone.name; }))
                here([&] { copy->References()->Remove(reference); });
    removed_.clear();
}

} // namespace fernwick
