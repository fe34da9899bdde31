#include "Apps/fernwick/verbs/info_verify.h"
#include "Apps/fernwick/options/exit_status.h"
#include "Apps/fernwick/options/refusal.h"
#include "Apps/fernwick/output/file_errors.h"
#include "Apps/fernwick/output/json_output.h"
#include "Apps/fernwick/output/plural.h"
#include "Apps/fernwick/verbs/round_trip.h"
#include "Basic/runtime_error.h"
#include "Host/files/path_lookup.h"
#include <fmt/format.h>

namespace cli {

namespace {

std::string verdictName(FileVerdict::Kind kind) {
    switch (kind) {
    case FileVerdict::Kind::Same: return "same";
    case FileVerdict::Kind::Changes: return "changes";
    case FileVerdict::Kind::Missing: return "missing";
    case FileVerdict::Kind::Unreadable: break;
    }
    return "unreadable";
}

std::vector<FileVerdict> verdictsOf(const ProjectGroup& subject, const std::optional<basic::CodePage>& given) {
    std::vector<FileVerdict> verdicts;
    if (!subject.path.empty()) verdicts.push_back(verifyGroup(subject.path, given));
    for (const auto& path : subject.projects) {
        std::vector<FileVerdict> more;
        const auto err = basic::attempt([&] { more = verifyProject(path, given); });
        if (err.Number != 0)
            throw Refusal(statusOfOpening(err.Number), withFile(host::absolutePath(path), err.Description));
        verdicts.insert(verdicts.end(), more.begin(), more.end());
    }
    return verdicts;
}

std::size_t countOfVerdicts(const std::vector<FileVerdict>& verdicts, FileVerdict::Kind kind) {
    return std::size_t(
        std::count_if(verdicts.begin(), verdicts.end(), [kind](const FileVerdict& one) { return one.kind == kind; }));
}

std::string verdictSummary(const std::vector<FileVerdict>& verdicts) {
    using Kind = FileVerdict::Kind;
    const auto missing = countOfVerdicts(verdicts, Kind::Missing),
               unreadable = countOfVerdicts(verdicts, Kind::Unreadable),
               changes = countOfVerdicts(verdicts, Kind::Changes);
    const auto readable = verdicts.size() - missing - unreadable;
    auto text = changes == 0
                    ? fmt::format("{} would be written back byte for byte", plural(readable, "file"))
                    : fmt::format("{} of {} would change when written back", changes, plural(readable, "file"));
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

} // namespace

int verifyRoundTrip(const ProjectGroup& subject, const Options& options, Console& console) {
    const auto verdicts = verdictsOf(subject, options.codePage);
    const bool allSame = countOfVerdicts(verdicts, FileVerdict::Kind::Same) == verdicts.size();
    const int status = allSame ? kGood : kProjectErrors;
    if (options.format == Format::Json) {
        console.out(dumpJson(jsonOfVerdicts(verdicts)));
        return status;
    }
    for (const auto& one : verdicts) {
        if (options.verbosity == Verbosity::Quiet && one.kind == FileVerdict::Kind::Same) continue;
        const auto where = one.kind == FileVerdict::Kind::Changes ? fmt::format(" at byte {}", one.firstByte) : "";
        console.out(fmt::format("{:<10}  {}{}\n", verdictName(one.kind), one.file, where));
    }
    if (options.verbosity != Verbosity::Quiet) console.out(verdictSummary(verdicts) + "\n");
    return status;
}

} // namespace cli
