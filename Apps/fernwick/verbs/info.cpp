#include "Apps/fernwick/options/exit_status.h"
#include "Apps/fernwick/output/plural.h"
#include "Apps/fernwick/run/project_argument.h"
#include "Apps/fernwick/verbs/project_info.h"
#include "Apps/fernwick/verbs/round_trip.h"
#include "Apps/fernwick/verbs/verbs.h"
#include "Basic/case_folding.h"
#include "Host/files/encoding.h"
#include "Host/files/group_file.h"
#include "Host/files/path_lookup.h"
#include <fmt/format.h>

namespace cli {

namespace {

/// The projects that the argument stands for: itself, or those of a group.
struct InfoSubject {
    std::string group; ///< "" for a single project
    std::vector<std::string> projects;
};

bool isGroupName(const std::string& path) {
    return path.size() > 4 && basic::equalNoCase(std::string_view(path).substr(path.size() - 4), ".vbg");
}

InfoSubject subjectOf(const std::string& path, const basic::CodePage& usual) {
    if (!isGroupName(path)) return {{}, {path}};
    InfoSubject subject;
    subject.group = host::absolutePath(path);
    host::FileContent content;
    const auto err = basic::attempt([&] { content = host::readFile(subject.group); });
    if (err.Number != 0) throw Refusal(statusOfOpening(err.Number), withFile(subject.group, err.Description));
    if (!host::GroupFile::looksLikeGroup(content.bytes))
        throw Refusal(kProjectErrors, fmt::format("{}: is not a Visual Basic project group", path));
    host::PathLookup lookup;
    const auto folder = subject.group.substr(0, subject.group.rfind('/'));
    const host::GroupFile group{content.bytes, host::codePageOf(content.bytes, usual)};
    for (const auto& entry : group.entries()) subject.projects.push_back(lookup.find(folder, entry.path));
    return subject;
}

// ---- what a project holds ----

std::string projectLine(const ProjectInfo& info) {
    if (!info.isFernwick) return "no";
    return fmt::format("version {}, {}", info.projectVersion,
                       info.device.empty() ? "no device" : "device " + info.device);
}

std::string componentLines(const ProjectInfo& info, const std::string& folder) {
    std::size_t kind = 0, name = 0;
    for (const auto& one : info.components) {
        kind = std::max(kind, one.kind.size());
        name = std::max(name, one.name.size());
    }
    std::string text;
    for (const auto& one : info.components)
        text += fmt::format("  {:<{}}  {:<{}}  {:>7} lines  {}\n", one.kind, kind, one.name, name, one.lines,
                            one.file.rfind(folder, 0) == 0 ? one.file.substr(folder.size()) : one.file);
    return text;
}

std::string referenceLines(const ProjectInfo& info) {
    std::string text;
    for (const auto& one : info.references)
        if (!one.builtIn)
            text += fmt::format("  {}  {} {}{}\n    {}\n", one.name, one.guid, one.version,
                                one.broken ? "  BROKEN" : "", one.path);
    return text;
}

std::string stepLines(const char* heading, const std::vector<std::string>& steps) {
    if (steps.empty()) return {};
    std::string text = heading;
    for (const auto& step : steps) text += fmt::format("  {}\n", step);
    return text;
}

std::string textOfInfo(const ProjectInfo& info) {
    const auto folder = info.file.substr(0, info.file.rfind('/') + 1);
    std::string text = fmt::format("{}\n", info.name);
    const auto row = [&](const char* label, const std::string& value) {
        if (!value.empty()) text += fmt::format("  {:<10}  {}\n", label, value);
    };
    row("file", info.file);
    row("type", info.type);
    row("title", info.title);
    row("version", info.version);
    row("start-up", info.startup);
    row("Fernwick", projectLine(info));
    if (!info.components.empty()) text += "Components\n" + componentLines(info, folder);
    if (const auto references = referenceLines(info); !references.empty()) text += "References\n" + references;
    text += stepLines("Steps before a compile\n", info.preCompileSteps);
    text += stepLines("Steps after a compile\n", info.postCompileSteps);
    const auto broken = brokenReferencesOf(info);
    text += fmt::format("{}, {}, {}{}\n", plural(info.components.size(), "component"),
                        plural(codeLinesOf(info), "code line"), plural(info.references.size(), "reference"),
                        broken > 0 ? fmt::format(", {} broken", broken) : "");
    return text;
}

ProjectInfo infoOfProject(const std::string& path, const Options& options, Console& console) {
    Session session{options, console};
    session.open(path);
    session.takeUp();
    auto info = infoOf(session);
    session.closeUnsaved();
    return info;
}

int tellProjects(const InfoSubject& subject, const Options& options, Console& console) {
    auto json = jsonResult("info");
    json["projects"] = Json::array();
    int status = kGood;
    std::string gap;
    for (const auto& path : subject.projects) {
        try {
            const auto info = infoOfProject(path, options, console);
            json["projects"].push_back(jsonOfInfo(info));
            if (options.format == Format::Text) console.out(std::exchange(gap, "\n") + textOfInfo(info));
        } catch (const Refusal& refusal) {
            if (subject.group.empty()) throw;
            status = kProjectErrors; // a group with a project that can't be read
            console.err(std::string("fernwick: ") + refusal.what(), Tone::Error);
        }
    }
    if (options.format == Format::Json) console.out(dumpJson(json));
    return status;
}

// ---- whether writing it back changes a byte ----

std::string verdictName(FileVerdict::Kind kind) {
    switch (kind) {
    case FileVerdict::Kind::Same: return "same";
    case FileVerdict::Kind::Changes: return "changes";
    case FileVerdict::Kind::Missing: return "missing";
    case FileVerdict::Kind::Unreadable: break;
    }
    return "unreadable";
}

std::vector<FileVerdict> verdictsOf(const InfoSubject& subject, const basic::CodePage& usual) {
    std::vector<FileVerdict> verdicts;
    if (!subject.group.empty()) verdicts.push_back(verifyGroup(subject.group, usual));
    for (const auto& path : subject.projects) {
        std::vector<FileVerdict> more;
        const auto err = basic::attempt([&] { more = verifyProject(path, usual); });
        if (err.Number != 0)
            throw Refusal(statusOfOpening(err.Number), withFile(host::absolutePath(path), err.Description));
        verdicts.insert(verdicts.end(), more.begin(), more.end());
    }
    return verdicts;
}

std::size_t count(const std::vector<FileVerdict>& verdicts, FileVerdict::Kind kind) {
    return std::size_t(
        std::count_if(verdicts.begin(), verdicts.end(), [kind](const FileVerdict& one) { return one.kind == kind; }));
}

std::string closingLine(const std::vector<FileVerdict>& verdicts) {
    using Kind = FileVerdict::Kind;
    const auto missing = count(verdicts, Kind::Missing), unreadable = count(verdicts, Kind::Unreadable),
               changes = count(verdicts, Kind::Changes);
    auto text =
        plural(verdicts.size() - missing - unreadable, "file") + ": " +
        (changes == 0 ? "writing them back changes no byte" : fmt::format("writing them back changes {}", changes));
    if (missing > 0) text += fmt::format(", {} missing", missing);
    if (unreadable > 0) text += fmt::format(", {} unreadable", unreadable);
    return text;
}

Json jsonOfVerdicts(const std::vector<FileVerdict>& verdicts) {
    auto json = jsonResult("info");
    json["files"] = Json::array();
    for (const auto& one : verdicts) {
        Json file{{"file", one.file}, {"verdict", verdictName(one.kind)}};
        if (one.kind == FileVerdict::Kind::Changes) file["firstByte"] = one.firstByte;
        if (!one.reason.empty()) file["reason"] = one.reason;
        json["files"].push_back(file);
    }
    return json;
}

int verify(const InfoSubject& subject, const Options& options, Console& console, const basic::CodePage& usual) {
    const auto verdicts = verdictsOf(subject, usual);
    const int status = count(verdicts, FileVerdict::Kind::Changes) > 0 ? kProjectErrors : kGood;
    if (options.format == Format::Json) {
        console.out(dumpJson(jsonOfVerdicts(verdicts)));
        return status;
    }
    for (const auto& one : verdicts) {
        if (options.verbosity == Verbosity::Quiet && one.kind == FileVerdict::Kind::Same) continue;
        const auto where = one.kind == FileVerdict::Kind::Changes ? fmt::format(" at byte {}", one.firstByte) : "";
        console.out(fmt::format("{:<10}  {}{}\n", verdictName(one.kind), one.file, where));
    }
    if (options.verbosity != Verbosity::Quiet) console.out(closingLine(verdicts) + "\n");
    return status;
}

} // namespace

int runInfo(const Options& options, Console& console) {
    const basic::CodePage usual{options.codePage};
    const auto subject = subjectOf(projectArgument(options.project), usual);
    return options.verify ? verify(subject, options, console, usual) : tellProjects(subject, options, console);
}

} // namespace cli
