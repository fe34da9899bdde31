#include "Add-in/lifecycle/project_files.h"
#include "Add-in/build/dependencies/resource_list.h"
#include "Add-in/lifecycle/converted_project_file.h"
#include "Add-in/project/stored/project_store.h"
#include "Basic/runtime_error.h"
#include "Basic/text.h"
#include <algorithm>
#include <set>

namespace fernwick {

namespace {

constexpr std::string_view kResourceFile = "ResFile32=";

/// The value of a line of a project file without its quotes; of "Module=Name; Path" the path.
std::string pathOfLine(std::string_view line) {
    const auto divider = line.find('=');
    if (divider == line.npos) return {};
    auto value = line.substr(divider + 1);
    if (const auto semicolon = value.find(';'); semicolon != value.npos) value = value.substr(semicolon + 1);
    auto path = basic::Trim(value);
    std::erase(path, '"');
    return path;
}

/// A project's own lines come before its sections.
template <class F>
void forEachOwnLine(FileSystemObject& files, const std::string& projectFile, F&& use) {
    const auto file = files.OpenTextFile(projectFile);
    while (!file->AtEndOfStream()) {
        const auto line = file->ReadLine();
        if (line.starts_with('[')) return;
        use(line);
    }
}

std::set<std::string> absolutePathsIn(FileSystemObject& files, const std::string& projectFile) {
    std::set<std::string> paths;
    forEachOwnLine(files, projectFile, [&](const std::string& line) {
        if (const auto path = pathOfLine(line); files.IsAbsolute(path)) paths.insert(files.Canonical(path));
    });
    return paths;
}

void readComponents(FileSystemObject& files, const vbide::VBProject& project, vbide::VBComponents& components,
                    ProjectFiles& found) {
    const auto absolute = absolutePathsIn(files, project.FileName());
    for (const auto& component : components.items())
        for (int i = 1; i <= component->FileCount(); ++i) {
            const auto path = component->FileNames(i);
            if (path.empty()) continue;
            found.components.push_back({path, absolute.contains(files.Canonical(component->FileNames(1)))});
        }
}

/// Calls `use` with each entry of a stored list.
template <class F>
void forEachEntry(const ProjectStore& store, const char* section, const std::string& countKey, std::int32_t first,
                  const char* key, F&& use) {
    const auto count = store.readCount(section, countKey);
    for (std::int32_t i = 0; i < count; ++i)
        (void)basic::attempt([&] { use(store.read(section, key + std::to_string(first + i))); });
}

} // namespace

ProjectFiles filesOfProject(FileSystemObject& files, const basic::Ref<vbide::VBProject>& project) {
    ProjectFiles found;
    readComponents(files, *project, *project->VBComponents(), found);

    ProjectStore store(nullptr);
    store.project = project;
    forEachEntry(store, kProjectDependencies, kNumDependencies, 0, kDependencyKey, [&](const std::string& entry) {
        if (!entry.ends_with(kFontType)) found.dependencies.push_back(entry.substr(0, entry.find(',')));
    });
    forEachEntry(store, kDependenciesSection, "NumTavletFileDependencies", 1, "TavletFileDependency",
                 [&](const std::string& entry) { found.dependencies.push_back(entry); });

    found.icons.push_back(storedInProjectFile(files, project->FileName(), "IconFileName"));
    forEachOwnLine(files, project->FileName(), [&](const std::string& line) {
        if (line.starts_with(kResourceFile)) found.icons.push_back(pathOfLine(line));
    });
    return found;
}

} // namespace fernwick
