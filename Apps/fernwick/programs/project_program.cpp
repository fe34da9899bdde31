#include "Apps/fernwick/programs/project_program.h"
#include "Apps/common/file_names.h"
#include "Apps/fernwick/checks/check_report.h"
#include "Apps/fernwick/checks/project_check.h"
#include "Apps/fernwick/options/exit_status.h"
#include "Apps/fernwick/options/refusal.h"
#include "Apps/fernwick/output/code_page_note.h"
#include "Apps/fernwick/output/file_errors.h"
#include "Apps/fernwick/run/project_argument.h"
#include "Basic/case_folding.h"
#include "Basic/runtime_error.h"
#include "Components/Image/verify/verify.h"
#include <algorithm>
#include <filesystem>
#include <fmt/format.h>

namespace cli {

namespace {

apps::CheckedProject openProject(const std::string& path, const Options& options, host::FileContents& contents) {
    apps::CheckedProject project;
    const auto err = basic::attempt([&] { project = apps::readProject(path, options.codePage, contents); });
    if (err.Number != 0) throw Refusal(statusOfNamedFile(path, err.Number), withFile(path, err.Description));
    return project;
}

bool canRun(const host::ProjectMember& member) {
    return !host::isComponentKind(member.kind) || member.kind == host::MemberKind::Module ||
           member.kind == host::MemberKind::Class;
}

void requireModules(const apps::CheckedProject& project) {
    if (!std::all_of(project.lines.begin(), project.lines.end(), canRun))
        throw Refusal(kProjectErrors, project.path + ": only projects of modules and classes can run at present.");
}

void requireSubMain(const apps::CheckedProject& project) {
    if (!basic::equalNoCase(project.startup, "Sub Main"))
        throw Refusal(kProjectErrors, project.path + ": the startup object is not Sub Main.");
}

/// Code that cannot run is a mistake of the compiler, not of the project, or was changed where it is stored.
std::shared_ptr<const image::CodeImage> verified(image::CodeImage code) {
    if (const auto problem = image::verify(code))
        throw Refusal(kMachineTrouble, "The compiled code is damaged: " + problem->text + ".");
    return std::make_shared<const image::CodeImage>(std::move(code));
}

} // namespace

std::string ProjectProgram::pathOf(const std::string& file) const {
    const auto at = paths.find(file);
    return at == paths.end() ? file : at->second;
}

ProjectProgram compileProgram(const Options& options, StartObject start, Console& console, Report& report) {
    host::FileContents contents;
    const auto project = openProject(projectArgument(options.project), options, contents);
    report.verb = options.verb;
    report.project = project.path;
    reportCodePage(console, project.path, project.page);
    requireModules(project);
    if (start == StartObject::SubMain) requireSubMain(project);

    ProjectCheck check{options, contents};
    auto compiled = check.compile(project);
    CheckReport found{options, console, report};
    ProjectProgram program;
    found.add(project, std::move(compiled.files));
    for (const auto& path : project.sources) program.paths[std::filesystem::path(path).filename().string()] = path;
    report.exitStatus = found.totals().status;
    if (!compiled.code) return program;
    if (start == StartObject::SubMain && compiled.code->start == image::kNone)
        throw Refusal(kProjectErrors, project.path + ": no module has a Sub Main.");
    program.program = std::make_shared<const tamarik::Program>(verified(std::move(*compiled.code)), project.name);
    program.entries = std::move(compiled.entries);
    return program;
}

} // namespace cli
