#include "Apps/fernwick/checks/project_check.h"
#include "Apps/common/checked_program.h"
#include "Apps/common/machine.h"
#include "Apps/common/version.h"
#include "Apps/fernwick/run/interruption.h"
#include "Apps/fernwick/stored/source_check.h"
#include "Basic/runtime_error.h"
#include "Host/files/path_lookup.h"
#include "Host/system/environment.h"
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

std::vector<CheckedSource> ProjectCheck::check(const apps::CheckedProject& project) {
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
        const auto& source = sources[i].content;
        content.add(source ? source->stamp.size + 1 : std::uint64_t{0});
        content.add(source ? source->stamp.digest : std::uint64_t{0});
    }
    return {name.digest(), content.digest()};
}

/// The descriptions of libraries are files of the installation.
void ProjectCheck::addLibraries(KeyText& key, const apps::CheckedProject& project) const {
    for (const auto& guid : project.libraries) key.add(guid);
    for (const auto& path : apps::libraryDescriptions(installation_)) key.addStateOf(path);
}

qltoolkit::ProgramOptions ProjectCheck::programOf(const apps::CheckedProject& project, bool isWhole) {
    auto program = apps::programOf(project, libraries_, isWhole);
    program.warnsOptionally = options_.warnsOptionally;
    return program;
}

CheckResults ProjectCheck::checkTexts(const apps::CheckedProject& project, const std::vector<CheckedSource>& sources,
                                      bool isWhole) {
    return qltoolkit::checkProject(textsOf(sources), project.constants, programOf(project, isWhole));
}

CompiledSources ProjectCheck::compile(const apps::CheckedProject& project) {
    CompiledSources compiled;
    for (auto& source : readSources(project)) {
        auto& added = compiled.sources.emplace_back(CheckedSource{std::move(source.failure), nullptr});
        if (source.content)
            added.text = std::make_unique<qltoolkit::SourceText>(project.sources[compiled.sources.size() - 1],
                                                                 std::move(source.content->bytes), project.page.page);
    }
    const auto texts = textsOf(compiled.sources);
    const bool isWhole = texts.size() == compiled.sources.size();
    auto made = qltoolkit::compileProject(texts, project.constants, programOf(project, isWhole), "Main",
                                          static_cast<std::uint32_t>(project.page.page.number()));
    std::size_t next = 0;
    for (auto& source : compiled.sources)
        if (source.text) source.result = std::move(made.results[next++]);
    if (isWhole) compiled.code = std::move(made.code);
    compiled.entries = std::move(made.entries);
    return compiled;
}

} // namespace cli
