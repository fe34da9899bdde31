#include "Apps/fernwick/groups/output_clash.h"
#include "Apps/fernwick/groups/project_name.h"
#include "Apps/fernwick/options/exit_status.h"
#include "Apps/fernwick/options/refusal.h"
#include "Apps/fernwick/run/output_files.h"
#include "Basic/case_folding.h"
#include "Basic/runtime_error.h"
#include "Components/QLToolkit/compiler.h"
#include "Host/files/native_path.h"
#include "Host/files/path_lookup.h"
#include <fmt/format.h>
#include <map>

namespace cli {

namespace {

/// The files that builds write, with the project that writes them. Names that differ only in case are the same file on
/// some disks.
class Outputs {
public:
    explicit Outputs(const Options& options) : options_(options) {}

    void add(const std::string& project, const std::string& name) {
        const bool moved = !options_.output.empty();
        const auto folder = moved ? host::absolutePath(options_.output) : host::folderOf(project);
        claim(project, host::pathIn(folder, name + qltoolkit::kImageSuffix));
        if (moved) claim(project, host::pathIn(folder, reportNameOf(project)));
    }

private:
    void claim(const std::string& project, const std::string& file) {
        const auto [other, isNew] = writers_.emplace(file, project);
        if (isNew) return;
        throw Refusal(kWrongUse, fmt::format("{} and {} would both write {}; build them into different folders, or "
                                             "rename one of them",
                                             other->second, project, file));
    }

    const Options& options_;
    std::map<std::string, std::string, basic::NoCaseLess> writers_;
};

std::optional<std::string> readableName(const std::string& project, const Options& options) {
    try {
        return projectNameIn(project, options.codePage);
    } catch (const basic::RuntimeError&) { return {}; } catch (const Refusal&) {
        return {};
    }
}

} // namespace

void requireDistinctOutputs(const ProjectGroup& group, const Options& options) {
    if (!makesImage(options)) return;
    Outputs outputs{options};
    for (const auto& project : group.projects)
        if (const auto name = readableName(project, options)) outputs.add(project, *name);
}

} // namespace cli
