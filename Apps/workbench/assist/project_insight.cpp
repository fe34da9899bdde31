#include "Apps/workbench/assist/project_insight.h"
#include "Apps/workbench/base/component_project.h"
#include "Apps/workbench/editing/rest.h"
#include "Basic/runtime_error.h"
#include "Components/Language/foreign.h"
#include "Host/model/code/component_kind.h"
#include "Host/model/component.h"
#include "Host/model/project.h"
#include <QCoreApplication>

namespace workbench {

namespace {

/// The longest time in which the window does not answer, in milliseconds.
constexpr int kLongestWait = 50;

} // namespace

std::string sourceName(vbide::VBComponent& component) {
    return component.Name() + std::string(host::kindOf(component.Type()).extension);
}

ProjectInsight::ProjectInsight(host::Host& host, std::string installation)
    : host_(host), libraries_(std::move(installation)) {
    workers_.setMaxThreadCount(1);
    rest_.setSingleShot(true);
    rest_.setInterval(kMillisecondsOfRest);
    connect(&rest_, &QTimer::timeout, this, [this] { beginStale(); });
    const auto forget = [this](const auto& component) { changed(component); };
    watches_.push_back(host.panes.codeChanged.connect(forget));
    watches_.push_back(host.panes.designChanged.connect(forget));
}

ProjectInsight::~ProjectInsight() { workers_.waitForDone(); }

void ProjectInsight::changed(const Component& component) {
    sources_.erase(component.shared());
    const auto project = projectOf(component);
    const auto state = project ? states_.find(project.shared()) : states_.end();
    if (state == states_.end()) return;
    state->second.isStale = true;
    rest_.start();
}

ProjectInsight::State& ProjectInsight::stateOf(const vbide::Ref<vbide::VBProject>& project) {
    const auto known = states_.find(project.shared());
    if (known != states_.end()) return known->second;
    auto& state = states_[project.shared()];
    const auto renew = [this, &state](const auto&...) {
        state.isStale = true;
        sources_.clear(); // their names may have changed
        rest_.start();
    };
    const auto components = host_.Events()->VBComponentsEvents(project);
    const auto references = host_.Events()->ReferencesEvents(project);
    state.watches.push_back(components->ItemAdded.connect(renew));
    state.watches.push_back(components->ItemRemoved.connect(renew));
    state.watches.push_back(components->ItemRenamed.connect(renew));
    state.watches.push_back(references->ItemAdded.connect(renew));
    state.watches.push_back(references->ItemRemoved.connect(renew));
    return state;
}

void ProjectInsight::beginStale() {
    std::erase_if(states_, [](const auto& entry) { return entry.first.expired(); });
    for (auto& [key, state] : states_)
        if (const auto project = key.lock(); state.isStale && !state.isRunning)
            (void)basic::attempt([&] { begin(vbide::Ref<vbide::VBProject>(project), state); }); // it may be removed
}

void ProjectInsight::prepare(const Component& component) {
    const auto project = projectOf(component);
    if (!project) return;
    auto& state = stateOf(project);
    if (!state.snapshot && !state.isRunning) begin(project, state);
}

ProjectInsight::Known ProjectInsight::of(const Component& component) {
    const auto project = projectOf(component);
    if (!project) return {};
    prepare(component);
    auto& state = stateOf(project);
    if (!state.snapshot && workers_.waitForDone(kLongestWait)) QCoreApplication::sendPostedEvents(this);
    return present(component);
}

ProjectInsight::Known ProjectInsight::present(const Component& component) {
    const auto project = projectOf(component);
    const auto state = project ? states_.find(project.shared()) : states_.end();
    if (state == states_.end() || !state->second.snapshot) return {};
    return {state->second.snapshot.get(), state->second.snapshot->moduleOf(sourceName(*component))};
}

ProjectInsight::Program ProjectInsight::programOf(const vbide::Ref<vbide::VBProject>& project) {
    Program program{{{}, {}, optionsOf(*project)}, {}};
    for (const auto& component : project->VBComponents()->items()) {
        auto source = sourceOf(component);
        if (!source) continue;
        program.input.sources.push_back(std::move(source));
        program.components.push_back(component);
    }
    if (const auto own = basic::cast<host::Project>(project))
        program.input.constants = qltoolkit::parseConditionalConstants(own->file().setting("CondComp").value_or(""));
    return program;
}

void ProjectInsight::begin(const vbide::Ref<vbide::VBProject>& project, State& state) {
    state.isStale = false;
    state.isRunning = true;
    workers_.start([this, key = Key(project.shared()), input = programOf(project).input] {
        auto made = std::make_shared<qltoolkit::Snapshot>(input.sources, input.constants, input.options);
        QMetaObject::invokeMethod(
            this, [this, key, made] { adopt(key, made); }, Qt::QueuedConnection);
    });
}

void ProjectInsight::adopt(const Key& project, std::shared_ptr<qltoolkit::Snapshot> snapshot) {
    const auto found = states_.find(project);
    if (found == states_.end()) return;
    auto& state = found->second;
    state.snapshot = std::move(snapshot);
    state.isRunning = false;
    if (state.isStale) rest_.start();
}

std::shared_ptr<const qltoolkit::SourceText> ProjectInsight::sourceOf(const Component& component) {
    const auto own = basic::cast<host::Component>(component);
    if (!own || host::kindOf(own->Type()).type != own->Type()) return nullptr; // no code
    auto& known = sources_[component.shared()];
    if (!known)
        known = std::make_shared<qltoolkit::SourceText>(sourceName(*component), own->source().bytes(),
                                                        own->source().codePage());
    return known;
}

qltoolkit::ProgramOptions ProjectInsight::optionsOf(vbide::VBProject& project) {
    qltoolkit::ProgramOptions options;
    options.projectName = project.Name();
    for (const auto& reference : project.References()->items()) {
        const auto guid = reference->Guid();
        if (apps::isLanguageLibrary(guid)) continue;
        const auto* library = libraries_.find(guid);
        options.isIncomplete |= !library;
        if (!library) library = language::foreignLibrary(guid);
        if (library) options.libraries.push_back(library);
    }
    return options;
}

} // namespace workbench
