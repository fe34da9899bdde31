#include "Host/registry/installed_values.h"
#include "Basic/runtime_error.h"
#include "Host/files/text_file.h"
#include "Host/registry/reg_roots.h"
#include "Host/registry/reg_status.h"
#include "Host/registry/reg_text.h"
#include <algorithm>
#include <fmt/format.h>
#include <system_error>

namespace host {
namespace {

constexpr std::string_view kRootDirMark = "%RootDir%";

std::vector<std::filesystem::path> installedRegFiles(const std::filesystem::path& root) {
    std::vector<std::filesystem::path> files;
    std::error_code error;
    for (std::filesystem::directory_iterator at(root / "registry", error), end; !error && at != end;
         at.increment(error))
        if (at->path().extension() == ".reg") files.push_back(at->path());
    std::sort(files.begin(), files.end());
    return files;
}

void fillInRootDir(RegValue& value, const std::string& root) {
    if (!isRegText(value.type)) return;
    for (auto at = value.data.find(kRootDirMark); at != value.data.npos;
         at = value.data.find(kRootDirMark, at + root.size()))
        value.data.replace(at, kRootDirMark.size(), root);
}

void install(InstalledValues& into, RegInstruction one, const std::string& root) {
    const auto place = placeOfRegKey(one.key);
    if (!place || place->hive != RegHiveId::Machine) throw RegFailure{RegStatus::AccessDenied};
    fillInRootDir(one.value, root);
    applyRegInstruction(into.machine, place->key, one);
}

void installFile(InstalledValues& into, const std::filesystem::path& file, const std::string& root) {
    for (auto& one : readRegText(readFile(file).bytes, file.string())) {
        const auto line = one.line;
        try {
            install(into, std::move(one), root);
        } catch (const RegFailure& failure) {
            into.problems.push_back(fmt::format("{}:{}: {}", file.string(), line, describe(failure.status)));
        }
    }
}

} // namespace

InstalledValues readInstalledValues(const std::filesystem::path& root) {
    InstalledValues values;
    for (const auto& file : installedRegFiles(root)) {
        const auto err = basic::attempt([&] { installFile(values, file, root.string()); });
        if (err.Number != 0) values.problems.push_back(err.Description);
    }
    return values;
}

} // namespace host
