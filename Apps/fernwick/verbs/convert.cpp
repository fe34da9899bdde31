#include "Add-in/lifecycle/converter_texts.h"
#include "Add-in/lifecycle/project_backup.h"
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

/// What a conversion would do, for a dry run.
struct Plan {
    std::string project, device, backup;
    std::vector<fernwick::CopiedFile> files;
    /// References that the device lacks, and that can be removed.
    std::vector<std::string> references;
};

Plan plan(Session& session, const Options& options, const std::string& key, const std::string& project) {
    auto& addIn = session.addIn();
    auto& files = session.machine().platform().files;
    Plan planned{project, key, {}, {}, {}};
    fernwick::Procedure here{addIn.errors, "frmDesignTargetConverter.ScanReferences"};
    for (const auto& reference : ScanReferences(here, addIn.deviceServices, session.project(), key))
        planned.references.push_back(reference->Name());
    if (options.inPlace)
        planned.backup = fernwick::freeBackupPath(files, project);
    else
        planned.files = fernwick::ProjectCopy(files, session.project(), project).files();
    return planned;
}

std::string labelOf(const fernwick::CopiedFile& file) {
    return file.isMissing ? "missing" : file.replaces ? "replace" : "write";
}

void printPlan(const Options& options, Console& console, const Plan& planned) {
    if (options.format == Format::Json) {
        auto json = jsonResult("convert");
        json["project"] = planned.project;
        json["device"] = planned.device;
        json["converted"] = false;
        if (options.inPlace) json["backup"] = planned.backup;
        json["plan"] = {{"references", planned.references}, {"files", Json::array()}};
        for (const auto& [from, to, isMissing, replaces, isOutside] : planned.files)
            json["plan"]["files"].push_back(
                {{"from", from}, {"to", to}, {"missing", isMissing}, {"replaces", replaces}, {"outside", isOutside}});
        return console.out(dumpJson(json));
    }
    const auto line = [&](const std::string& label, const std::string& text) {
        console.out(fmt::format("{:<9}  {}\n", label, text));
    };
    line("project", planned.project);
    line("device", planned.device);
    for (const auto& name : planned.references) line("reference", name + " (not on the device)");
    if (options.inPlace) line("backup", planned.backup);
    for (const auto& file : planned.files)
        line(labelOf(file), (file.isMissing ? file.from : file.to) + (file.isOutside ? " (outside)" : ""));
}

} // namespace

int runConvert(const Options& options, Console& console) {
    if (options.inPlace == !options.newFile.empty())
        throw Refusal(kWrongUse, "give either --in-place or --output FILE");
    Session session{options, console};
    const auto given = projectArgument(options.project);
    if (!options.dryRun) session.lock(given);
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
    if (options.dryRun) {
        printPlan(options, console, plan(session, options, key, project));
        return kGood;
    }
    const auto [done, isGood] = convert(session, options, key, project);
    print(options, console, done, project);
    return isGood ? kGood : kProjectErrors;
}

} // namespace cli
