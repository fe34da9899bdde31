#include "Apps/fernwick/groups/project_group.h"
#include "Apps/common/file_names.h"
#include "Apps/fernwick/options/exit_status.h"
#include "Apps/fernwick/options/refusal.h"
#include "Apps/fernwick/output/file_errors.h"
#include "Basic/runtime_error.h"
#include "Host/files/group_file.h"
#include "Host/files/path_lookup.h"
#include "Host/files/project_code_page.h"
#include "Host/files/text_file.h"
#include <algorithm>
#include <fmt/format.h>

namespace cli {

ProjectGroup projectGroupOf(const std::string& path, const std::optional<basic::CodePage>& given) {
    if (!apps::hasExtension(path, ".vbg")) return {{}, {path}};
    ProjectGroup subject;
    subject.path = host::absolutePath(path);
    host::FileContent content;
    const auto err = basic::attempt([&] { content = host::readFile(subject.path); });
    if (err.Number != 0) throw Refusal(statusOfOpening(err.Number), withFile(subject.path, err.Description));
    if (!host::GroupFile::looksLikeGroup(content.bytes))
        throw Refusal(kProjectErrors, fmt::format("{}: is not a Visual Basic project group", path));
    const auto folder = apps::folderOf(subject.path);
    const auto page = host::codePageOfProject(content.bytes, folder, given).page;
    host::PathLookup lookup(page);
    const host::GroupFile group{content.bytes, basic::codePageOfFile(content.bytes, page)};
    for (const auto& entry : group.entries()) {
        const auto project = lookup.find(folder, entry.path);
        const auto& listed = subject.projects;
        if (std::find(listed.begin(), listed.end(), project) == listed.end()) subject.projects.push_back(project);
    }
    return subject;
}

} // namespace cli
