#include "Apps/common/open_projects.h"
#include "Apps/common/checked_project.h"
#include "Apps/common/source_code_page.h"
#include "Host/model/project.h"
#include <filesystem>

namespace apps {

namespace {

std::string resourceFileOfOpen(host::Host& host, const std::string& outputPath) {
    for (const auto& open : host.VBProjects()->items()) {
        const auto project = basic::cast<host::Project>(open);
        if (!project || std::filesystem::path(project->folder()) / project->Name() != outputPath) continue;
        host::PathLookup lookup(project->codePage().page);
        return resourceFileOf(project->file(), project->folder(), lookup);
    }
    return "";
}

} // namespace

void compileOpenProjects(Machine& machine, const std::shared_ptr<host::Host>& host) {
    machine.codePageOfSource([open = std::weak_ptr(host)](const std::string& path) {
        const auto host = open.lock();
        return host ? codePageOfSource(*host, path) : basic::CodePage::windows1252();
    });
    machine.resourceFileOfProject([open = std::weak_ptr(host)](const std::string& outputPath) {
        const auto host = open.lock();
        return host ? resourceFileOfOpen(*host, outputPath) : "";
    });
}

} // namespace apps
