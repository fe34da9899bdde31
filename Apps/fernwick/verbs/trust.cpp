#include "Add-in/core/trusted_folders.h"
#include "Apps/common/file_names.h"
#include "Apps/fernwick/options/exit_status.h"
#include "Apps/fernwick/options/refusal.h"
#include "Apps/fernwick/output/json_output.h"
#include "Apps/fernwick/run/user_store.h"
#include "Apps/fernwick/verbs/verbs.h"
#include "Host/system/file_system.h"
#include <fmt/format.h>

namespace cli {

namespace {

/// The parsed operands: [list] | [add | remove] FOLDER|PROJECT.
struct TrustOperands {
    std::string action = "list", place;
};

bool isTrustAction(const std::string& operand) { return operand == "list" || operand == "add" || operand == "remove"; }

TrustOperands trustOperands(const std::vector<std::string>& operands) {
    TrustOperands parsed;
    auto next = operands.begin();
    const bool hasAction = next != operands.end() && isTrustAction(*next);
    if (hasAction) parsed.action = *next++;
    if (next != operands.end()) parsed.place = *next++;
    if (!hasAction && !parsed.place.empty()) parsed.action = "show";
    if (next != operands.end()) throw Refusal(kWrongUse, fmt::format("trust: {} is one operand too many", *next));
    if (parsed.place.empty() != (parsed.action == "list"))
        throw Refusal(kWrongUse, parsed.action == "list"
                                     ? "trust list takes no folder"
                                     : fmt::format("trust {}: no folder or project given", parsed.action));
    return parsed;
}

/// The folder of a project, or the folder itself, as the steps of its projects are run in it. A folder that no longer
/// exists can still lose its trust.
std::string folderOfPlace(const TrustOperands& operands) {
    const host::FileSystem files;
    const auto& place = operands.place;
    const bool isProject = apps::hasExtension(place, ".vbp") && !files.FolderExists(place);
    if (operands.action != "remove" && !files.FolderExists(place) && !(isProject && files.FileExists(place)))
        throw Refusal(kWrongUse, fmt::format("{}: {}", place,
                                             files.FileExists(place) ? "is not a folder or a project" : "not found"));
    const auto project = isProject ? place : files.BuildPath(place, "x");
    return files.GetParentFolderName(files.GetAbsolutePathName(project));
}

void print(const Options& options, Console& console, const fernwick::TrustedFolders& trusted,
           const std::vector<std::string>& folders) {
    auto json = jsonResult("trust");
    json["folders"] = Json::array();
    for (const auto& folder : folders) {
        const bool isTrusted = trusted.holds(folder);
        json["folders"].push_back({{"folder", folder}, {"trusted", isTrusted}});
        if (options.format == Format::Text)
            console.out(fmt::format("{}  {}\n", isTrusted ? "trusted    " : "not trusted", folder));
    }
    if (options.format == Format::Json) console.out(dumpJson(json));
}

} // namespace

int runTrust(const Options& options, Console& console) {
    const auto operands = trustOperands(options.operands);
    auto store = openStore();
    fernwick::TrustedFolders trusted{store};
    if (operands.action == "list") {
        print(options, console, trusted, trusted.list());
        return kGood;
    }
    const auto folder = folderOfPlace(operands);
    const bool stored =
        (operands.action != "add" || trusted.add(folder)) && (operands.action != "remove" || trusted.remove(folder));
    if (!stored) throw Refusal(kMachineTrouble, "the list of trusted folders cannot be written");
    print(options, console, trusted, {folder});
    return kGood;
}

} // namespace cli
