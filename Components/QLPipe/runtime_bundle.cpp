#include "Components/QLPipe/runtime_bundle.h"
#include "Components/QLPipe/device_names.h"
#include "Components/QLPipe/pipe_messages.h"
#include <algorithm>
#include <filesystem>
#include <toml++/toml.h>

namespace qlpipe {
namespace {

namespace fs = std::filesystem;

[[noreturn]] void unusable(const fs::path& file, const std::string& reason) {
    throw transferError(kRuntimeUnusable, {file.string() + ": " + reason});
}

BundleFile runtimeFile(const fs::path& list, const toml::node& entry) {
    const auto name = entry.value<std::string>().value_or("");
    if (!isSafeName(name)) unusable(list, "\"" + name + "\" is no name of a file below its folder");
    const auto path = (list.parent_path() / name).string();
    try {
        const auto size = sizeOfLocalFile(path);
        const auto kind = kindOf(name) == "CMF" ? FileKind::Font : FileKind::File;
        const auto place = kind == FileKind::Font ? kFontsFolder + lastPart(name) : kFilesFolder + name;
        return {kind, place, size, {}, [path, size] { return std::make_unique<LocalFile>(path, size); }};
    } catch (const TransferError& error) { unusable(list, error.text); }
}

} // namespace

Bundle runtimeBundle(const std::string& installation, const std::string& family) {
    const fs::path list = fs::path(installation) / "VB Toolkit" / "Runtime" / family / "runtime.toml";
    std::error_code ignored;
    if (!fs::is_regular_file(list, ignored)) throw transferError(kRuntimeNotShipped, {family});
    Bundle bundle;
    bundle.isRuntime = true;
    try {
        const toml::table table = toml::parse_file(list.string());
        bundle.version = table["version"].value_or(std::string());
        if (bundle.version.empty()) unusable(list, "\"version\" is missing");
        const auto* files = table["files"].as_array();
        if (!files || files->empty()) unusable(list, "\"files\" is missing or empty");
        for (const auto& entry : *files) bundle.files.push_back(runtimeFile(list, entry));
    } catch (const toml::parse_error& error) { unusable(list, std::string{error.description()}); }
    std::sort(bundle.files.begin(), bundle.files.end(),
              [](const BundleFile& a, const BundleFile& b) { return a.place < b.place; });
    return bundle;
}

} // namespace qlpipe
