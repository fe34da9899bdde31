#include "Apps/fernwick/checks/project_check.h"
#include "Apps/common/checked_program.h"
#include "Apps/common/machine.h"
#include "Apps/common/version.h"
#include "Apps/fernwick/run/interruption.h"
#include "Apps/fernwick/stored/source_check.h"
#include "Basic/runtime_error.h"
#include "Components/QLToolkit/source/res_file.h"
#include "Host/files/path_lookup.h"
#include "Host/system/environment.h"
#include <algorithm>
#include <iterator>
#include <utility>

namespace cli {

namespace {

std::vector<const qltoolkit::SourceText*> textsOf(const std::vector<CheckedSource>& sources) {
    std::vector<const qltoolkit::SourceText*> texts;
    for (const auto& source : sources)
        if (source.text) texts.push_back(source.text.get());
    return texts;
}

} // namespace

ProjectCheck::ProjectCheck(const Options& options, host::FileContents& contents)
    : options_(options),
      contents_(contents),
      installation_(apps::findInstallation(host::Environment{})),
      libraries_(installation_),
      cache_(checkCacheFolder()) {}

CheckedFiles ProjectCheck::check(const apps::CheckedProject& project) {
    auto sources = readSources(project);
    auto resources = readResourceFile(project);
    (void)resourcesIn(project, resources);
    const auto key = keyOf(project, sources);
    const auto bytes = cache_.find(key);
    auto results = bytes ? qltoolkit::resultsOf(*bytes) : std::nullopt;
    auto checked = checkedSources(project, sources, results);
    if (!results) {
        results = qltoolkit::checkProject(textsOf(checked), project.constants, programOf(project, checked));
        cache_.store(key, qltoolkit::bytesOf(*results));
    }
    addResults(checked, sources, std::move(*results));
    return {std::move(checked), std::move(resources.failure)};
}

CompiledProject ProjectCheck::compile(const apps::CheckedProject& project) {
    auto sources = readSources(project);
    auto resources = readResourceFile(project);
    const auto key = compileKeyOf(project, sources, resources);
    const auto bytes = cache_.find(key);
    auto program = bytes ? storedProgramOf(*bytes) : std::nullopt;
    auto results = program ? std::optional(std::move(program->results)) : std::nullopt;
    CompiledProject compiled{{checkedSources(project, sources, results), {}}, {}, {}};
    auto& files = compiled.files;
    if (!results) {
        const auto texts = textsOf(files.sources);
        const auto page = static_cast<std::uint32_t>(project.page.page.number());
        auto made = qltoolkit::compileProject(texts, project.constants, programOf(project, files.sources),
                                              {"Main", page, resourcesIn(project, resources)});
        const bool isWhole = texts.size() == sources.size() && resources.failure.errors == 0;
        program.reset();
        if (made.code && isWhole) {
            program = {made.results, std::move(made.entries), std::move(*made.code)};
            cache_.store(key, bytesOf(*program));
        }
        results = std::move(made.results);
    }
    addResults(files.sources, sources, std::move(*results));
    files.resourceFile = std::move(resources.failure);
    if (program) {
        compiled.code = std::move(program->code);
        compiled.entries = std::move(program->entries);
    }
    return compiled;
}

/// Texts are needed to compile, or to show messages.
std::vector<CheckedSource> ProjectCheck::checkedSources(const apps::CheckedProject& project,
                                                        std::vector<Source>& sources,
                                                        std::optional<qltoolkit::CheckResults>& results) {
    const auto readable = std::ranges::count_if(sources, [](const Source& each) { return each.content.has_value(); });
    if (results && std::ssize(*results) != readable) results.reset();
    std::vector<CheckedSource> checked;
    for (std::size_t i = 0, next = 0; i < sources.size(); ++i) {
        auto& added = checked.emplace_back(CheckedSource{std::move(sources[i].failure), nullptr});
        if (!sources[i].content) continue;
        if (!results || !(*results)[next++].diagnostics.empty())
            added.text = std::make_unique<qltoolkit::SourceText>(
                project.sources[i], std::move(sources[i].content->bytes), project.page.page);
    }
    return checked;
}

void ProjectCheck::addResults(std::vector<CheckedSource>& checked, const std::vector<Source>& sources,
                              qltoolkit::CheckResults results) {
    for (std::size_t i = 0, next = 0; i < sources.size(); ++i)
        if (sources[i].content) checked[i].result = std::move(results[next++]);
}

std::vector<ProjectCheck::Source> ProjectCheck::readSources(const apps::CheckedProject& project) {
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

ProjectCheck::Source ProjectCheck::readResourceFile(const apps::CheckedProject& project) {
    return project.resourceFile.empty() ? Source{} : read(project.resourceFile);
}

std::vector<image::Resource> ProjectCheck::resourcesIn(const apps::CheckedProject& project, Source& file) {
    std::vector<image::Resource> resources;
    if (!file.content) return resources;
    const auto err = basic::attempt([&] { resources = qltoolkit::readResources(file.content->bytes); });
    if (err.Number != 0) file.failure = unreadSource(project.resourceFile, err);
    return resources;
}

CheckKey ProjectCheck::keyOf(const apps::CheckedProject& project, const std::vector<Source>& sources) const {
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
        addContent(content, sources[i]);
    }
    return {name.digest(), content.digest()};
}

CheckKey ProjectCheck::compileKeyOf(const apps::CheckedProject& project, const std::vector<Source>& sources,
                                    const Source& resources) const {
    const auto check = keyOf(project, sources);
    KeyText name, content;
    name.add(check.project);
    name.add("code");
    content.add(check.content);
    addContent(content, resources);
    return {name.digest(), content.digest()};
}

void ProjectCheck::addContent(KeyText& key, const Source& source) {
    key.add(source.content ? source.content->stamp.size + 1 : std::uint64_t{0});
    key.add(source.content ? source.content->stamp.digest : std::uint64_t{0});
}

/// The descriptions of libraries are files of the installation.
void ProjectCheck::addLibraries(KeyText& key, const apps::CheckedProject& project) const {
    for (const auto& guid : project.libraries) key.add(guid);
    for (const auto& path : apps::libraryDescriptions(installation_)) key.addStateOf(path);
}

qltoolkit::ProgramOptions ProjectCheck::programOf(const apps::CheckedProject& project,
                                                  const std::vector<CheckedSource>& sources) {
    auto program = apps::programOf(project, libraries_, textsOf(sources).size() == sources.size());
    program.warnsOptionally = options_.warnsOptionally;
    return program;
}

} // namespace cli
