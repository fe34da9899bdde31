#include "Components/QLPipe/package/runtime_bundle.h"
#include "Basic/case_folding.h"
#include "Components/QLPipe/base/device_names.h"
#include "Components/QLPipe/base/pipe_messages.h"
#include <algorithm>
#include <filesystem>
#include <toml++/toml.h>

namespace qlpipe {
namespace {

namespace fs = std::filesystem;

[[noreturn]] void unusable(const fs::path& file, const std::string& reason) {
    throw transferError(kRuntimeUnusable, {{"reason", file.string() + ": " + reason}});
}

BundleFile runtimeFile(const fs::path& list, const fs::path& folder, const std::string& name) {
    if (!isSafeName(name)) unusable(list, "\"" + name + "\" is not a file name inside its folder");
    const auto path = (folder / name).string();
    try {
        const auto size = sizeOfLocalFile(path);
        const bool isFont = kindOf(name) == "CMF";
        return {isFont ? FileKind::Font : FileKind::File,
                isFont ? kFontsFolder + lastPart(name) : kFilesFolder + name,
                size,
                {},
                [path, size] { return std::make_unique<LocalFile>(path, size); }};
    } catch (const TransferError&) { unusable(list, path + " is missing or cannot be read"); }
}

void addFiles(Bundle& bundle, const fs::path& list, const fs::path& folder,
              const toml::node_view<const toml::node>& names) {
    if (!names.is_array()) unusable(list, "the list of files is missing");
    for (const auto& name : *names.as_array())
        bundle.files.push_back(runtimeFile(list, folder, name.value_or(std::string())));
}

/// Refuses two files with the same place, and a file in the place of a folder.
void sortFiles(Bundle& bundle, const fs::path& list) {
    auto& files = bundle.files;
    std::sort(files.begin(), files.end(),
              [](const auto& a, const auto& b) { return basic::compareNoCase(a.place, b.place) < 0; });
    const auto twice = std::adjacent_find(
        files.begin(), files.end(), [](const auto& a, const auto& b) { return basic::equalNoCase(a.place, b.place); });
    if (twice != files.end()) unusable(list, "\"" + twice->place + "\" is listed twice");
    if (const auto place = fileUsedAsFolder(files); !place.empty())
        unusable(list, "\"" + place + "\" is both a file and a folder");
}

} // namespace

Bundle runtimeBundle(const std::string& installation, const std::string& family) {
    const fs::path root = fs::path(installation) / "VB Toolkit" / "Runtime", list = root / family / "runtime.toml";
    std::error_code ignored;
    // without an installation the path would be relative to the current folder
    if (installation.empty() || !fs::is_regular_file(list, ignored))
        throw transferError(kRuntimeNotShipped, {{"family", family}});
    Bundle bundle;
    bundle.isRuntime = true;
    try {
        const toml::table table = toml::parse_file(list.string());
        bundle.version = table["version"].value_or(std::string());
        if (bundle.version.empty()) unusable(list, "\"version\" is missing");
        addFiles(bundle, list, root / family, table["files"]);
        addFiles(bundle, list, root / "Common", table["common"]);
    } catch (const toml::parse_error& error) { unusable(list, std::string{error.description()}); }
    sortFiles(bundle, list);
    return bundle;
}

} // namespace qlpipe
