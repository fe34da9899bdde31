#include "Add-in/lifecycle/converter_texts.h"
#include "Apps/common/file_names.h"
#include "Apps/fernwick/options/exit_status.h"
#include "Apps/fernwick/output/json_output.h"
#include "Apps/fernwick/run/project_argument.h"
#include "Apps/fernwick/run/project_run.h"
#include "Apps/fernwick/run/session.h"
#include "Apps/fernwick/verbs/verbs.h"
#include "Host/model/host.h"
#include <fmt/format.h>

namespace cli {

namespace {

using fernwick::Conversion;

/// Refusal 2 for the project's own folder.
std::string newProjectFile(Session& session, const std::string& given) {
    const auto& files = session.machine().platform().files;
    auto path = files.GetAbsolutePathName(given);
    if (!apps::hasExtension(path, ".vbp")) path += ".vbp";
    const auto folder = files.GetParentFolderName(path), old = files.GetParentFolderName(session.path());
    if (files.SamePath(folder, old) || files.SameFile(folder, old))
        throw Refusal(kWrongUse, fmt::format("{}: {}", path, fernwick::converter_texts::kSameFolder));
    return path;
}

/// Opens the copy, which becomes a recent project; references that the device lacks leave it, too.
bool finishCopy(Session& session) {
    auto& addIn = session.addIn();
    auto& conversion = addIn.converter.conversion();
    session.project()->IsDirty(false); // some of its references may have been removed
    session.host().VBProjects()->Remove(session.project());
    const auto copy = session.host().VBProjects()->AddFromFile(conversion.last().projectFile);
    conversion.finishCopy(copy);
    const auto project = addIn.projects.GetQLProject(copy);
    project->SaveFiles();
    addIn.recent.AddProjectToRecentList(project);
    return copy->Saved();
}

struct Outcome {
    Conversion done;
    /// Whether everything was converted and saved.
    bool isGood = false;
};

Outcome convert(Session& session, const Options& options, const std::string& key, const std::string& newFile) {
    session.connect();
    if (!session.isOpen()) throw Refusal(kMachineTrouble, "the project was closed by the add-in");
    auto& conversion = session.addIn().converter.conversion();
    if (options.inPlace)
        conversion.convertInPlace(session.project(), key);
    else
        conversion.convertCopy(session.project(), key, [&newFile] { return newFile; });
    Outcome outcome{conversion.last()};
    if (!outcome.done.projectConverted) return outcome;
    const bool saved = options.inPlace ? session.closeAndSave() : finishCopy(session);
    outcome.isGood = saved && outcome.done.isComplete;
    return outcome;
}

/// The device that the project has now.
std::string ownDevice(Session& session) {
    session.takeUp();
    const std::string device = session.settings()->TargetDevice();
    session.forget();
    return device;
}

void print(const Options& options, Console& console, const Conversion& done, const std::string& project) {
    if (options.format == Format::Json) {
        auto json = jsonResult("convert");
        json["project"] = project;
        json["device"] = done.newPlatform;
        json["converted"] = done.projectConverted;
        if (!done.backup.empty()) json["backup"] = done.backup;
        return console.out(dumpJson(json));
    }
    if (!done.projectConverted) return;
    console.out(project + "\n");
    if (!done.backup.empty() && options.verbosity != Verbosity::Quiet)
        console.out(fmt::format("the old project file is {}\n", done.backup));
}

} // namespace

int runConvert(const Options& options, Console& console) {
    if (options.inPlace == !options.newFile.empty())
        throw Refusal(kWrongUse, "give either --in-place or --output FILE");
    Session session{options, console};
    const auto given = projectArgument(options.project);
    session.lock(given);
    session.open(given);
    session.requireFernwickProject();
    const auto project = options.inPlace ? session.path() : newProjectFile(session, options.newFile);
    const auto key = usableDevice(session, options.device);
    if (options.inPlace && ownDevice(session) == key) {
        console.note(fmt::format("{}: its device is {} already", project, key));
        Conversion unchanged;
        unchanged.newPlatform = key;
        print(options, console, unchanged, project);
        return kGood;
    }
    options.inPlace ? session.requireWritableProject() : session.requireAllMembers();
    const auto [done, isGood] = convert(session, options, key, project);
    print(options, console, done, project);
    return isGood ? kGood : kProjectErrors;
}

} // namespace cli
