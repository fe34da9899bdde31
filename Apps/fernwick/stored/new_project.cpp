#include "Apps/fernwick/stored/new_project.h"
#include "Add-in/lifecycle/project_copy.h"
#include "Add-in/lifecycle/project_lines.h"
#include "Apps/common/file_names.h"
#include "Apps/fernwick/options/exit_status.h"
#include "Apps/fernwick/options/suggestions.h"
#include "Apps/fernwick/output/file_errors.h"
#include "Host/model/code/component_kind.h"
#include "Host/model/code/names.h"
#include <filesystem>
#include <fmt/format.h>

namespace cli {

namespace {

constexpr std::size_t kLongestName = 40;
constexpr const char* kStandardTemplate = "Fernwick Project";
/// The mark of a project that only opens the project manager.
constexpr const char* kStubMark = "StartUpProject";

bool isStub(fernwick::FileSystemObject& files, const std::string& path) {
    auto lines = fernwick::readProjectLines(files, path);
    return fernwick::GlobalLines(lines).has(kStubMark);
}

/// The names of the installed templates, without those that are no project.
std::vector<std::string> templateNames(fernwick::FileSystemObject& files, const std::string& folder) {
    std::vector<std::string> names;
    if (!files.FolderExists(folder)) return names;
    for (const auto& file : files.Files(folder))
        if (apps::hasExtension(file, ".vbp") && !isStub(files, files.BuildPath(folder, file)))
            names.push_back(files.GetBaseName(file));
    return names;
}

/// The files of a new project. Those that were written go again unless they are kept.
class NewFiles {
public:
    explicit NewFiles(fernwick::FileSystemObject& files) : files_(files) {}
    NewFiles(const NewFiles&) = delete;
    ~NewFiles() {
        for (const auto& path : written_) (void)basic::attempt([&] { files_.DeleteFile(path, true); });
        std::error_code ignored;
        for (const auto& folder : folders_) std::filesystem::remove(folder, ignored); // only if it is empty
    }

    /// Creates the folder with those above it.
    void makeFolder(const std::string& folder) {
        for (auto missing = folder; !files_.FolderExists(missing); missing = files_.GetParentFolderName(missing))
            folders_.push_back(missing);
        fernwick::MakeDirectory(files_, folder);
    }
    void write(const std::string& path, const std::function<void()>& save) {
        save();
        written_.push_back(path);
    }
    std::vector<std::string> keep() {
        folders_.clear();
        return std::exchange(written_, {});
    }

private:
    fernwick::FileSystemObject& files_;
    std::vector<std::string> written_, folders_;
};

void requireFree(const fernwick::FileSystemObject& files, const std::string& path) {
    if (files.FileExists(path) || files.FolderExists(path))
        throw Refusal(kWrongUse, path + ": exists already; nothing was written");
}

using Component = basic::Ref<vbide::VBComponent>;

std::vector<std::pair<Component, std::string>> placesOfComponents(Session& session, const NewProjectPlace& place) {
    const auto& files = session.machine().platform().files;
    std::vector<std::pair<Component, std::string>> places;
    for (const auto& component : session.project()->VBComponents()->items()) {
        const auto extension = std::string(host::kindOf(component->Type()).extension);
        places.emplace_back(component, files.BuildPath(place.folder, component->Name() + extension));
        requireFree(files, places.back().second);
    }
    return places;
}

} // namespace

NewProjectPlace newProjectPlace(const std::string& path) {
    const host::FileSystem files;
    NewProjectPlace place;
    place.folder = files.GetAbsolutePathName(path);
    place.name = files.GetFileName(place.folder);
    if (!host::isLegalName(place.name) || place.name.size() > kLongestName)
        throw Refusal(kWrongUse, fmt::format("{}: \"{}\" is not a name for a project. A name begins with a letter and "
                                             "has at most {} letters, digits and \"_\".",
                                             path, place.name, kLongestName));
    if (files.FileExists(place.folder)) throw Refusal(kWrongUse, place.folder + ": is a file, not a folder");
    place.projectFile = files.BuildPath(place.folder, place.name + ".vbp");
    requireFree(files, place.projectFile);
    return place;
}

std::string newProjectTemplate(Session& session, const std::string& given) {
    auto& files = session.machine().platform().files;
    const auto folder = files.BuildPath(session.host().TemplatePath(), "Projects");
    const auto names = templateNames(files, folder);
    const auto wanted = given.empty() ? kStandardTemplate : given;
    for (const auto& name : names)
        if (basic::equalNoCase(name, wanted)) return files.BuildPath(folder, name + ".vbp");
    if (apps::hasExtension(given, ".vbp") && files.FileExists(given) && !isStub(files, given))
        return files.GetAbsolutePathName(given);
    if (given.empty()) throw Refusal(kMachineTrouble, fmt::format("{}/{}.vbp is missing", folder, wanted));
    const auto near = didYouMean(given, names);
    throw Refusal(kWrongUse, fmt::format("{} is not a template{}", given,
                                         near.empty() ? "; these are installed: " + listedWords(names) : near));
}

std::vector<std::string> saveNewProject(Session& session, const NewProjectPlace& place) {
    auto& files = session.machine().platform().files;
    const auto project = session.project();
    project->Name(place.name);
    const auto components = placesOfComponents(session, place);
    NewFiles written(files);
    const auto failed = basic::attempt([&] {
        written.makeFolder(place.folder);
        for (const auto& [component, path] : components) written.write(path, [&] { component->SaveAs(path); });
        written.write(place.projectFile, [&] { project->SaveAs(place.projectFile); });
    });
    if (failed.Number != 0) throw Refusal(kProjectErrors, withFile(place.folder, failed.Description));
    return written.keep();
}

} // namespace cli
