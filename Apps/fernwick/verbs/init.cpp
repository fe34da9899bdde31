#include "Add-in/lifecycle/project_backup.h"
#include "Add-in/project/stored/project_store.h"
#include "Apps/fernwick/options/exit_status.h"
#include "Apps/fernwick/output/file_errors.h"
#include "Apps/fernwick/output/json_output.h"
#include "Apps/fernwick/run/project_argument.h"
#include "Apps/fernwick/run/project_run.h"
#include "Apps/fernwick/run/terminal_reply.h"
#include "Apps/fernwick/stored/project_adoption.h"
#include "Apps/fernwick/verbs/verbs.h"
#include "Host/system/file_system.h"
#include <fmt/format.h>

namespace cli {

namespace {

struct InitOutcome {
    std::string project, device, backup;
    bool isWritten = false;
};

bool isFernwickProject(Session& session) {
    std::string mark;
    (void)basic::attempt(
        [&] { mark = session.project()->ReadProperty(fernwick::kGlobalSection, "IsQuinloftProject"); });
    return basic::equalNoCase(mark, "True");
}

/// The device given, the only one, or the one chosen at the terminal.
std::string chosenDevice(Session& session, const Options& options, Console& console) {
    if (!options.device.empty()) return usableDevice(session, options.device);
    const auto keys = session.addIn().devices.GetDesignTargets(false);
    if (keys.empty()) throw Refusal(kMachineTrouble, "no usable design target is installed; see fernwick targets");
    if (keys.size() == 1) return keys.front();
    std::string key;
    if (console.canAsk()) {
        console.err("Choose a device for the project.");
        const auto& context = session.user().context();
        key = askKey(console, context.deviceRows(), context.isDevice);
    }
    if (key.empty())
        throw Refusal(kWrongUse,
                      fmt::format("{}: choose the device with --device KEY (see fernwick targets)", session.path()));
    return key;
}

void printText(Console& console, const Adoption& planned, const InitOutcome& outcome) {
    const auto line = [&](const char* label, const std::string& text) {
        console.out(fmt::format("{:<9}  {}\n", label, text));
    };
    line("project", outcome.project);
    line("device", outcome.device);
    for (const auto& text : planned.replaced) line("replace", text);
    for (const auto& text : planned.added) line("add", text);
    for (const auto& name : planned.references) line("reference", name + " (not on the device)");
    for (const auto& [file, name, className] : planned.controls)
        line("control", fmt::format("{}: {} is a {} (not on the device)", file, name, className));
    for (const auto& file : planned.components) line("component", file + " (not on the device)");
    printMessages(planned.messages, outcome.project, console);
}

Json jsonOf(const Adoption& planned, const InitOutcome& outcome) {
    auto json = jsonResult("init");
    json["project"] = outcome.project;
    json["device"] = outcome.device;
    json["written"] = outcome.isWritten;
    if (!outcome.backup.empty()) json["backup"] = outcome.backup;
    json["added"] = planned.added;
    json["replaced"] = planned.replaced;
    json["references"] = planned.references;
    json["controls"] = Json::array();
    for (const auto& [file, name, className] : planned.controls)
        json["controls"].push_back({{"file", file}, {"name", name}, {"class", className}});
    json["components"] = planned.components;
    json["messages"] = Json::array();
    for (const auto& message : planned.messages)
        json["messages"].push_back({{"severity", severityOf(message)},
                                    {"number", message.number},
                                    {"text", message.text},
                                    {"file", message.file},
                                    {"line", message.line}});
    return json;
}

bool mayWrite(const Options& options, Console& console, const std::string& project) {
    if (const auto given = options.answers.given(nullptr)) return *given == Reply::Yes;
    if (options.format != Format::Text || !console.canAsk()) return false; // the lines must have been shown
    console.err(fmt::format("Write these lines to {}?", project));
    return askReply(console, {{Reply::Yes, Reply::No}, Reply::No, Reply::No}) == Reply::Yes;
}

/// The session stores nothing, so the file is written here.
std::string writeAdopted(const Adoption& planned, const std::string& project) {
    host::FileSystem files;
    std::string backup;
    const auto failed = basic::attempt([&] {
        if (files.ReadBytes(project) != planned.before)
            throw Refusal(kProjectErrors, project + ": was changed by another program; nothing was written");
        backup = fernwick::backUp(files, project);
        files.WriteBytes(project, planned.after);
    });
    if (failed.Number != 0) throw Refusal(kProjectErrors, withFile(project, failed.Description));
    return backup;
}

int finish(Session& session, const Options& options, Console& console, const Adoption& planned, InitOutcome outcome) {
    if (options.format == Format::Text) printText(console, planned, outcome);
    if (mayWrite(options, console, outcome.project)) {
        outcome.backup = writeAdopted(planned, outcome.project);
        outcome.isWritten = true;
        if (session.settings()) session.addIn().recent.AddProjectToRecentList(session.settings());
    }
    if (options.format == Format::Json)
        console.out(dumpJson(jsonOf(planned, outcome)));
    else if (outcome.isWritten && options.verbosity != Verbosity::Quiet)
        console.out(fmt::format("the old project file is {}\n", outcome.backup));
    if (!outcome.isWritten) console.err("fernwick: nothing was written; write these lines with --yes", Tone::Error);
    return outcome.isWritten ? kGood : kProjectErrors;
}

} // namespace

int runInit(const Options& options, Console& console) {
    auto inMemory = options;
    inMemory.noStore = true; // nothing is stored before the answer
    const auto given = projectArgument(options.project);
    Session session{inMemory, console};
    session.lock(given);
    session.open(given);
    InitOutcome outcome{session.path(), {}, {}, false};
    if (isFernwickProject(session)) {
        session.requireFernwickProject(); // not one of an old version
        console.note(fmt::format("{}: is a Fernwick project already", session.path()));
        if (options.format == Format::Json) console.out(dumpJson(jsonOf({}, outcome)));
        return kGood;
    }
    if (host::FileSystem{}.GetAttributes(session.path()) & fernwick::ReadOnlyAttribute)
        throw Refusal(kMachineTrouble, session.path() + ": the project file is read-only");
    outcome.device = chosenDevice(session, options, console);
    const auto planned = adoptProject(session, outcome.device);
    return finish(session, options, console, planned, outcome);
}

} // namespace cli
