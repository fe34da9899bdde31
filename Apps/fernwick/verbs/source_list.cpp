#include "Apps/fernwick/verbs/source_list.h"
#include "Apps/common/file_names.h"
#include "Apps/fernwick/options/exit_status.h"
#include "Apps/fernwick/output/file_errors.h"
#include "Basic/runtime_error.h"
#include "Host/files/encoding.h"
#include "Host/files/group_file.h"
#include "Host/files/path_lookup.h"
#include "Host/files/project_file.h"
#include <algorithm>

namespace cli {

namespace {

using apps::folderOf;
using apps::hasExtension;

class SourceCollector {
public:
    explicit SourceCollector(const basic::CodePage& usual) : usual_(usual) {}

    /// `isNamed` is false for the projects of a group.
    void add(const std::string& path, bool isNamed) {
        const auto err = basic::attempt([&] {
            if (hasExtension(path, ".vbp"))
                addProject(path);
            else if (hasExtension(path, ".vbg"))
                addGroup(path);
            else
                list_.sources.push_back({path, {}, isNamed});
        });
        if (err.Number == 0) return;
        list_.problems.push_back(withFile(path, err.Description));
        list_.status = std::max(list_.status, isNamed ? statusOfNamedFile(path, err.Number) : int(kProjectErrors));
    }

    SourceList take() { return std::move(list_); }

private:
    void addProject(const std::string& path) {
        const auto content = host::readFile(path);
        const auto page = host::codePageOf(content.bytes, usual_);
        host::ProjectFile project{content.bytes, page};
        if (!project.looksLikeProject())
            throw basic::RuntimeError(basic::kInvalidProcedureCall, "not a Visual Basic project");
        const auto constants = qltoolkit::parseConditionalConstants(project.setting("CondComp").value_or(""));
        host::PathLookup lookup;
        for (const auto& member : project.members())
            if (host::isComponentKind(member.content.kind))
                list_.sources.push_back({lookup.find(folderOf(path), member.content.value), constants, false});
    }

    void addGroup(const std::string& path) {
        const auto content = host::readFile(path);
        if (!host::GroupFile::looksLikeGroup(content.bytes))
            throw basic::RuntimeError(basic::kInvalidProcedureCall, "not a Visual Basic project group");
        const host::GroupFile group{content.bytes, host::codePageOf(content.bytes, usual_)};
        host::PathLookup lookup;
        for (const auto& entry : group.entries()) add(lookup.find(folderOf(path), entry.path), false);
    }

    const basic::CodePage& usual_;
    SourceList list_;
};

} // namespace

SourceList listSources(const std::vector<std::string>& operands, const basic::CodePage& usual) {
    SourceCollector collector{usual};
    for (const auto& operand : operands) collector.add(operand, true);
    return collector.take();
}

} // namespace cli
