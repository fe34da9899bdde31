#include "Apps/common/file_names.h"
#include "Apps/fernwick/groups/project_group.h"
#include "Apps/fernwick/groups/project_name.h"
#include "Apps/fernwick/options/exit_status.h"
#include "Apps/fernwick/options/refusal.h"
#include "Apps/fernwick/output/file_errors.h"
#include "Apps/fernwick/output/json_output.h"
#include "Apps/fernwick/run/output_files.h"
#include "Apps/fernwick/run/project_argument.h"
#include "Apps/fernwick/run/project_lock.h"
#include "Apps/fernwick/verbs/verbs.h"
#include "Basic/case_folding.h"
#include "Basic/runtime_error.h"
#include "Components/QLToolkit/compiler.h"
#include "Host/files/native_path.h"
#include "Host/files/path_lookup.h"
#include "Host/system/file_system.h"
#include <fmt/format.h>

namespace cli {

namespace {

/// NAME.0000.qlx and NAME.DEVICE.qlpkg.
bool isMadeFrom(const std::string& name, const std::string& file) {
    const bool isPackage = apps::hasExtension(file, ".qlpkg") && basic::startsWithNoCase(file, name + ".");
    return isPackage || basic::equalNoCase(file, name + qltoolkit::kImageSuffix);
}

/// Deletes what builds of the project have made, and adds the paths to `json`.
void cleanProject(const std::string& given, const Options& options, Console& console, Json& json) {
    const auto project = host::absolutePath(given);
    host::FileSystem files;
    const auto folder = options.output.empty() ? host::folderOf(project) : files.GetAbsolutePathName(options.output);
    const ProjectLock lock{options.output.empty() ? project : files.BuildPath(folder, host::fileNameOf(project)),
                           !options.noWait, console};
    const auto name = projectNameIn(project, options.codePage);
    const auto report = reportNameOf(project);
    for (const auto& file : files.Files(folder)) {
        const bool isReport = !options.output.empty() && file == report;
        if (!isReport && !isMadeFrom(name, file)) continue;
        const auto path = files.BuildPath(folder, file);
        if (!options.dryRun) files.DeleteFile(path, false);
        json.push_back(path);
        if (options.format == Format::Text) console.out(path + "\n");
    }
}

} // namespace

int runClean(const Options& options, Console& console) {
    auto json = jsonResult("clean");
    json["deleted"] = Json::array();
    const auto group = projectGroupOf(projectArgument(options.project), options.codePage);
    for (const auto& project : group.projects) {
        try {
            cleanProject(project, options, console, json["deleted"]);
        } catch (const basic::RuntimeError& error) {
            throw Refusal(statusOfNamedFile(project, error.Number),
                          withFile(host::absolutePath(project), error.Description));
        }
    }
    if (options.format == Format::Json) console.out(dumpJson(json));
    return kGood;
}

} // namespace cli
