#include "Host/model/openable_file.h"
#include "Host/files/group_file.h"
#include "Host/files/native_path.h"
#include "Host/files/path_lookup.h"
#include "Host/files/project_code_page.h"
#include "Host/files/project_file.h"
#include "Host/model/code/component_kind.h"
#include "Host/model/code/loaded_source.h"
#include "Host/model/errors/host_errors.h"
#include <algorithm>
#include <fmt/format.h>

namespace host {
namespace {

using GivenPage = std::optional<basic::CodePage>;

basic::CodePage pageOf(const std::string& path, std::string_view bytes, const GivenPage& given) {
    return basic::codePageOfFile(bytes, codePageOfProject(bytes, folderOf(path), given).page);
}

bool isProject(const std::string& path, std::string_view bytes, const GivenPage& given) {
    return ProjectFile(bytes, pageOf(path, bytes, given)).looksLikeProject();
}

bool hasProject(const std::string& path, std::string_view bytes, const GivenPage& given) {
    const auto page = pageOf(path, bytes, given);
    PathLookup lookup(page);
    const auto entries = GroupFile(bytes, page).entries();
    return std::any_of(entries.begin(), entries.end(), [&](const auto& entry) {
        bool good = false;
        (void)basic::attempt([&] {
            const auto member = lookup.find(folderOf(path), entry.path);
            good = isProject(member, readFile(member).bytes, given);
        });
        return good;
    });
}

} // namespace

void requireOpenable(const std::string& path, const std::optional<basic::CodePage>& codePage) {
    const auto bytes = readFile(path).bytes;
    if (const auto kind = memberKindOfFile(path))
        (void)sourceOf(*kind, bytes, path, codePageOfSource(bytes, codePage).page);
    else if (GroupFile::looksLikeGroup(bytes) && !hasProject(path, bytes, codePage))
        throw hostError(kInvalidFileFormat, fmt::format("{}: none of its projects can be opened", path));
    else if (!GroupFile::looksLikeGroup(bytes) && !isProject(path, bytes, codePage))
        throw hostError(kInvalidFileFormat, fmt::format("{}: is not a Visual Basic project file", path));
}

} // namespace host
