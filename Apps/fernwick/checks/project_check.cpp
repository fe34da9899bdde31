#include "Apps/fernwick/checks/project_check.h"
#include "Apps/common/machine.h"
#include "Apps/common/version.h"
#include "Apps/fernwick/run/interruption.h"
#include "Apps/fernwick/stored/source_check.h"
#include "Basic/runtime_error.h"
#include "Components/Language/foreign.h"
#include "Host/files/path_lookup.h"
#include "Host/system/environment.h"
#include <algorithm>
#include <thread>
#include <utility>

namespace cli {

ProjectCheck::ProjectCheck(const Options& options, host::FileContents& contents)
    : options_(options),
      contents_(contents),
      installation_(apps::findInstallation(host::Environment{})),
      libraries_(installation_),
      cache_(checkCacheFolder()) {}

std::vector<CheckedSource> ProjectCheck::check(const ProjectToCheck& project) {
    auto sources = readSources(project);
    const auto key = keyOf(project, sources);
    auto results = cache_.find(key);
    std::vector<CheckedSource> checked;
    std::size_t readable = 0;
    for (auto& source : sources) {
        readable += source.content.has_value();
        checked.push_back({std::move(source.failure), nullptr});
    }
    const bool isKnown = results && results->size() == readable;
    for (std::size_t i = 0, next = 0; i < sources.size(); ++i) {
        if (!sources[i].content) continue;
        if (!isKnown || !(*results)[next++].diagnostics.empty())
            checked[i].text = std::make_unique<qltoolkit::SourceText>(
                project.sources[i], std::move(sources[i].content->bytes), project.page.page);
    }
    if (!isKnown) {
        results = checkTexts(project, checked, readable == sources.size());
        cache_.store(key, *results);
    }
    for (std::size_t i = 0, next = 0; i < sources.size(); ++i)
        if (sources[i].content) checked[i].result = std::move((*results)[next++]);
    return checked;
}

std::vector<ProjectCheck::Source> ProjectCheck::readSources(const ProjectToCheck& project) {
    std::vector<Source> sources;
    for (const auto& path : project.sources) {
        checkInterrupt();
        sources.push_back(read(path));
    }
    return sources;
}

ProjectCheck::Source ProjectCheck::read(const std::string& path) {
    host::FileContent content;
    const auto err = basic::attempt([&] { content = contents_.take(path); });
    if (err.Number != 0 || content.bytes.size() > qltoolkit::kMaxSourceBytes)
        return {std::nullopt, unreadSource(path, err)};
    return {std::move(content), {}};
}

CheckKey ProjectCheck::keyOf(const ProjectToCheck& project, const std::vector<Source>& sources) const {
    KeyText name, content;
    name.add(host::absolutePath(project.path));
    name.add(options_.warnsOptionally);

    content.add(apps::kVersion);
    content.addStateOf("/proc/self/exe");
    content.add(project.name);
    content.add(project.isForDevices);
    content.add(std::uint64_t(project.page.page.number()));
    for (const auto& [constant, value] : project.constants) {
        content.add(constant);
        content.add(static_cast<std::uint64_t>(value));
    }
    addLibraries(content, project);
    for (std::size_t i = 0; i < sources.size(); ++i) {
        content.add(project.sources[i]);
        const auto& source = sources[i].content;
        content.add(source ? source->stamp.size + 1 : std::uint64_t{0});
        content.add(source ? source->stamp.digest : std::uint64_t{0});
    }
    return {name.digest(), content.digest()};
}

/// The descriptions of libraries are files of the installation.
void ProjectCheck::addLibraries(KeyText& key, const ProjectToCheck& project) const {
    for (const auto& guid : project.libraries) key.add(guid);
    for (const auto& path : apps::libraryDescriptions(installation_)) key.addStateOf(path);
}

qltoolkit::ProgramOptions ProjectCheck::programOf(const ProjectToCheck& project, bool isWhole) {
    qltoolkit::ProgramOptions program;
    program.projectName = project.name;
    program.threads = std::max(1U, std::thread::hardware_concurrency());
    program.warnsOfDevices = project.isForDevices;
    program.warnsOptionally = options_.warnsOptionally;
    program.isIncomplete = !isWhole;
    for (const auto& guid : project.libraries) {
        if (apps::isLanguageLibrary(guid)) continue;
        const auto* library = libraries_.find(guid);
        program.isIncomplete |= !library;
        // Of well-known libraries the classes of controls are known at least.
        if (!library) library = language::foreignLibrary(guid);
        if (library) program.libraries.push_back(library);
    }
    return program;
}

CheckResults ProjectCheck::checkTexts(const ProjectToCheck& project, const std::vector<CheckedSource>& sources,
                                      bool isWhole) {
    std::vector<const qltoolkit::SourceText*> texts;
    for (const auto& source : sources)
        if (source.text) texts.push_back(source.text.get());
    return qltoolkit::checkProject(texts, project.constants, programOf(project, isWhole));
}

} // namespace cli
