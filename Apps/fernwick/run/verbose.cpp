#include "Apps/fernwick/run/verbose.h"
#include "Components/QLToolkit/compiler.h"
#include <fmt/format.h>

namespace cli {

namespace {

std::vector<std::string> sourcesOf(Session& session) {
    std::vector<std::string> paths{session.path()};
    const auto& files = session.machine().platform().files;
    for (const auto& component : session.project()->VBComponents()->items())
        paths.push_back(files.GetAbsolutePathName(component->FileNames(1)));
    return paths;
}

std::string stateOfImage(Session& session) {
    const auto& files = session.machine().platform().files;
    const auto name = session.project()->Name() + qltoolkit::kImageSuffix;
    const auto image = files.BuildPath(files.GetParentFolderName(session.path()), name);
    if (!files.FileExists(image)) return fmt::format("there is no image {} yet", name);
    const auto made = files.GetDateLastModified(image);
    const auto sources = sourcesOf(session); // the project file, which each run may write, comes last
    for (auto source = sources.rbegin(); source != sources.rend(); ++source)
        if (files.GetDateLastModified(*source) > made) return fmt::format("{} is newer than {}", *source, name);
    return fmt::format("{} is current", name);
}

void showRead(Session& session, const std::string& path) { session.console().detail("read " + path); }

/// A detail that cannot be found out must not end the run.
template <class Show>
void detailed(Session& session, Show&& show) {
    if (session.console().verbosity() == Verbosity::Verbose) (void)basic::attempt(show);
}

} // namespace

void showSources(Session& session) {
    detailed(session, [&] {
        for (const auto& path : sourcesOf(session)) showRead(session, path);
    });
}

void showStateOfImage(Session& session) {
    detailed(session, [&] { session.console().detail(stateOfImage(session)); });
}

void showOtherInputs(Session& session) {
    detailed(session, [&] {
        const auto sources = sourcesOf(session);
        for (const auto& input : session.machine().build().inputs)
            if (std::find(sources.begin(), sources.end(), input) == sources.end()) showRead(session, input);
    });
}

} // namespace cli
