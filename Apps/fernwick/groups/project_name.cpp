#include "Apps/fernwick/groups/project_name.h"
#include "Apps/common/file_names.h"
#include "Apps/fernwick/options/exit_status.h"
#include "Apps/fernwick/options/refusal.h"
#include "Host/files/native_path.h"
#include "Host/files/project_code_page.h"
#include "Host/files/project_file.h"
#include "Host/files/text_file.h"

namespace cli {

std::string projectNameIn(const std::string& path, const std::optional<basic::CodePage>& given) {
    const auto content = host::readFile(path);
    const auto page = host::codePageOfProject(content.bytes, apps::folderOf(path), given).page;
    const host::ProjectFile project{content.bytes, basic::codePageOfFile(content.bytes, page)};
    if (!project.looksLikeProject()) throw Refusal(kProjectErrors, path + ": is not a Visual Basic project file");
    const auto name = project.setting("Name").value_or("");
    return name.empty() ? host::baseNameOf(path) : name;
}

} // namespace cli
