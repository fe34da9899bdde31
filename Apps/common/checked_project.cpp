#include "Apps/common/checked_project.h"
#include "Apps/common/file_names.h"
#include "Basic/case_folding.h"
#include "Basic/runtime_error.h"
#include "Host/files/project_code_page.h"

namespace apps {

namespace {

bool isForDevices(const host::ProjectFile& project) {
    std::string value;
    (void)basic::attempt([&] { value = project.readProperty("Quinloft Global", "IsQuinloftProject"); });
    return basic::equalNoCase(value, "True");
}

/// The first braces of the value of a Reference or Object line.
std::string guidOf(std::string_view value) {
    const auto open = value.find('{'), close = value.find('}');
    return open == value.npos || close < open || close == value.npos
               ? ""
               : std::string(value.substr(open, close - open + 1));
}

void addMember(CheckedProject& project, const host::ProjectMember& member, host::PathLookup& lookup) {
    if (host::isComponentKind(member.kind))
        project.sources.push_back(lookup.find(folderOf(project.path), member.value));
    else if (member.kind == host::MemberKind::Reference || member.kind == host::MemberKind::Object)
        project.libraries.push_back(guidOf(member.value));
    project.lines.push_back(member);
}

} // namespace

std::string resourceFileOf(const host::ProjectFile& file, const std::string& folder, host::PathLookup& lookup) {
    const auto written = file.setting("ResFile32");
    return written ? lookup.find(folder, *written) : "";
}

CheckedProject readProject(const std::string& path, const std::optional<basic::CodePage>& given) {
    host::FileContents contents;
    return readProject(path, given, contents);
}

CheckedProject readProject(const std::string& path, const std::optional<basic::CodePage>& given,
                           host::FileContents& contents) {
    const auto content = host::readFile(path);
    const auto detected = host::codePageOfProject(content.bytes, folderOf(path), given, contents);
    host::ProjectFile file{content.bytes, basic::codePageOfFile(content.bytes, detected.page)};
    if (!file.looksLikeProject()) throw basic::RuntimeError(basic::kInvalidProcedureCall, "not a Visual Basic project");
    CheckedProject project{path, file.setting("Name").value_or(""), {}, {}, detected, isForDevices(file), {}, {}, {},
                           {}};
    project.startup = file.setting("Startup").value_or("");
    project.constants = qltoolkit::parseConditionalConstants(file.setting("CondComp").value_or(""));
    host::PathLookup lookup(detected.page);
    for (const auto& member : file.members()) addMember(project, member.content, lookup);
    project.resourceFile = resourceFileOf(file, folderOf(project.path), lookup);
    return project;
}

} // namespace apps
