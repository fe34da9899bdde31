#include "Apps/fernwick/verbs/source_list.h"
#include "Apps/common/file_names.h"
#include "Apps/fernwick/output/file_errors.h"
#include "Basic/runtime_error.h"
#include "Host/files/group_file.h"
#include "Host/files/path_lookup.h"
#include "Host/files/project_code_page.h"
#include "Host/files/project_file.h"

namespace cli {

namespace {

using apps::folderOf;
using apps::hasExtension;

class SourceCollector {
public:
    explicit SourceCollector(const std::optional<basic::CodePage>& given) : given_(given) {}

    void add(const std::string& path) {
        const auto err = basic::attempt([&] {
            if (hasExtension(path, ".vbp"))
                addProject(path);
            else if (hasExtension(path, ".vbg"))
                addGroup(path);
            else
                list_.sources.push_back({path, {}, given_});
        });
        if (err.Number != 0) list_.problems.push_back(withFile(path, err.Description));
    }

    SourceList take() { return std::move(list_); }

private:
    void addProject(const std::string& path) {
        const auto content = host::readFile(path);
        const auto detected = host::codePageOfProject(content.bytes, folderOf(path), given_);
        host::ProjectFile project{content.bytes, basic::codePageOfFile(content.bytes, detected.page)};
        if (!project.looksLikeProject())
            throw basic::RuntimeError(basic::kInvalidProcedureCall, "not a Visual Basic project");
        const auto constants = qltoolkit::parseConditionalConstants(project.setting("CondComp").value_or(""));
        list_.projects.emplace_back(path, detected);
        host::PathLookup lookup(detected.page);
        for (const auto& member : project.members())
            if (host::isComponentKind(member.content.kind))
                list_.sources.push_back({lookup.find(folderOf(path), member.content.value), constants, detected.page});
    }

    void addGroup(const std::string& path) {
        const auto content = host::readFile(path);
        if (!host::GroupFile::looksLikeGroup(content.bytes))
            throw basic::RuntimeError(basic::kInvalidProcedureCall, "not a Visual Basic project group");
        const auto page = host::codePageOfProject(content.bytes, folderOf(path), given_).page;
        const host::GroupFile group{content.bytes, basic::codePageOfFile(content.bytes, page)};
        host::PathLookup lookup(page);
        for (const auto& entry : group.entries()) add(lookup.find(folderOf(path), entry.path));
    }

    const std::optional<basic::CodePage>& given_;
    SourceList list_;
};

} // namespace

SourceList listSources(const std::vector<std::string>& operands, const std::optional<basic::CodePage>& given) {
    SourceCollector collector{given};
    for (const auto& operand : operands) collector.add(operand);
    return collector.take();
}

} // namespace cli
