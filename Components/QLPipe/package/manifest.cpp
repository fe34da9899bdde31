#include "Basic/case_folding.h"
#include "Components/QLPipe/base/device_names.h"
#include "Components/QLPipe/base/pipe_messages.h"
#include "Components/QLPipe/base/sha256.h"
#include "Components/QLPipe/package/bundle.h"
#include "Components/QLPipe/settings/application_settings.h"
#include <algorithm>
#include <nlohmann/json.hpp>
#include <numeric>
#include <set>

namespace qlpipe {
namespace {

using Json = nlohmann::ordered_json;

constexpr int kManifestVersion = 1;
constexpr int kIndent = 2;

struct KindName {
    FileKind kind;
    const char* name;
    const char* folder;
};
constexpr KindName kKindNames[] = {
    {FileKind::Image, "image", kFilesFolder},
    {FileKind::File, "file", kFilesFolder},
    {FileKind::Font, "font", kFontsFolder},
    {FileKind::Icon, "icon", kIconPlace},
};

const KindName& kindNameOf(FileKind kind) {
    return *std::find_if(std::begin(kKindNames), std::end(kKindNames),
                         [&](const auto& row) { return row.kind == kind; });
}

[[noreturn]] void malformed(const std::string& reason) { throw ManifestProblem{ManifestProblem::Malformed, reason}; }

const Json& member(const Json& object, const char* key) {
    const auto found = object.find(key);
    if (found == object.end()) malformed(std::string{"\""} + key + "\" is missing");
    return *found;
}

std::string text(const Json& object, const char* key) {
    const Json& value = member(object, key);
    if (!value.is_string()) malformed(std::string{"\""} + key + "\" is not a string");
    return value.get<std::string>();
}

std::int64_t number(const Json& object, const char* key, std::int64_t most) {
    const Json& value = member(object, key);
    if (!value.is_number_unsigned() || value.get<std::uint64_t>() > std::uint64_t(most))
        malformed(std::string{"\""} + key + "\" is not a number from 0 to " + std::to_string(most));
    return value.get<std::int64_t>();
}

const Json& list(const Json& object, const char* key) {
    const Json& value = member(object, key);
    if (!value.is_array()) malformed(std::string{"\""} + key + "\" is not a list");
    return value;
}

FileKind kindNamed(const std::string& name) {
    for (const auto& row : kKindNames)
        if (row.name == name) return row.kind;
    malformed("the kind \"" + name + "\" is unknown");
}

bool isChecksum(const std::string& digits) {
    return digits.size() == Sha256::kHexDigits && digits.find_first_not_of("0123456789abcdef") == std::string::npos;
}

void needSafe(bool safe, const std::string& name) {
    if (!safe) throw ManifestProblem{ManifestProblem::UnsafeName, name};
}

/// Fonts have no subfolders, and the icon has a fixed place.
bool isPlaceFor(FileKind kind, const std::string& place) {
    if (kind == FileKind::Icon) return place == kIconPlace;
    const std::string folder = kindNameOf(kind).folder;
    if (!place.starts_with(folder)) return false;
    const auto name = place.substr(folder.size());
    return kind == FileKind::Font ? isSafePart(name) : isSafeName(name);
}

BundleFile readFile(const Json& entry) {
    if (!entry.is_object()) malformed("a file entry is not an object");
    BundleFile file;
    file.kind = kindNamed(text(entry, "kind"));
    file.place = text(entry, "path");
    needSafe(isPlaceFor(file.kind, file.place), file.place);
    file.size = number(entry, "size", kLargestFile);
    file.sha256 = text(entry, "sha256");
    if (!isChecksum(file.sha256)) malformed("the checksum of " + file.place + " is invalid");
    return file;
}

/// Returns "" for a missing member. `problem` refuses values as it does those of a project.
std::string optionalText(const Json& object, const char* key,
                         std::string (*problem)(const std::string&, const TargetLimits&)) {
    if (!object.contains(key)) return {};
    auto value = text(object, key);
    if (const auto wrong = problem(value, {}); !wrong.empty()) malformed(std::string{"\""} + key + "\": " + wrong);
    return value;
}

std::string exactOrientation(const std::string& value, const TargetLimits&) {
    const bool isKnown = std::find(kOrientations.begin(), kOrientations.end(), value) != kOrientations.end();
    return isKnown ? "" : "it must be Portrait or Landscape";
}

/// Manifests of earlier versions do not have these members.
void readSettings(const Json& object, Bundle& bundle) {
    bundle.creatorId = optionalText(object, "creatorId", creatorIdProblem);
    if (object.contains("memoryLimit")) bundle.memoryLimit = number(object, "memoryLimit", kLargestFile);
    bundle.orientation = optionalText(object, "orientation", exactOrientation);
    if (object.contains("arguments")) bundle.arguments = text(object, "arguments");
}

void writeSettings(const Bundle& bundle, Json& object) {
    if (!bundle.creatorId.empty()) object["creatorId"] = bundle.creatorId;
    if (bundle.memoryLimit) object["memoryLimit"] = *bundle.memoryLimit;
    if (!bundle.orientation.empty()) object["orientation"] = bundle.orientation;
    if (!bundle.arguments.empty()) object["arguments"] = bundle.arguments;
}

void readFiles(const Json& object, Bundle& bundle) {
    std::set<std::string, basic::NoCaseLess> places;
    for (const auto& entry : list(object, "files")) {
        bundle.files.push_back(readFile(entry));
        const auto& place = bundle.files.back().place;
        if (!places.insert(place).second) malformed(place + " is listed twice");
    }
    if (const auto place = fileUsedAsFolder(bundle.files); !place.empty())
        malformed(place + " is both a file and a folder");
}

void readApplication(const Json& object, Bundle& bundle) {
    bundle.project = text(object, "project");
    needSafe(isSafePart(bundle.project), bundle.project);
    bundle.displayName = text(object, "displayName");
    bundle.device = text(object, "device");
    needSafe(isSafePart(bundle.device), bundle.device);
    for (const auto& reference : list(object, "references")) {
        if (!reference.is_string()) malformed("a reference is not a string");
        bundle.references.push_back(reference.get<std::string>());
    }
    readSettings(object, bundle);
}

Bundle readBundle(const Json& object) {
    if (!object.is_object()) malformed("it is not an object");
    const auto version = number(object, "schemaVersion", kLargestFile);
    if (version > kManifestVersion) throw ManifestProblem{ManifestProblem::NewerVersion, std::to_string(version)};
    if (version < kManifestVersion) malformed("its version is " + std::to_string(version));
    Bundle bundle;
    const auto kind = text(object, "kind");
    if (kind != "application" && kind != "runtime") malformed("the kind \"" + kind + "\" is unknown");
    bundle.isRuntime = kind == "runtime";
    if (!bundle.isRuntime) readApplication(object, bundle);
    bundle.version = text(object, "version");
    readFiles(object, bundle);
    return bundle;
}

Json filesOf(const Bundle& bundle) {
    Json files = Json::array();
    for (const auto& file : bundle.files)
        files.push_back(
            {{"path", file.place}, {"kind", kindNameOf(file.kind).name}, {"size", file.size}, {"sha256", file.sha256}});
    return files;
}

} // namespace

std::int64_t Bundle::bytes() const {
    return std::accumulate(files.begin(), files.end(), std::int64_t{0},
                           [](std::int64_t sum, const BundleFile& file) { return sum + file.size; });
}

void needReadable(const Bundle& bundle) {
    if (const auto size = manifestSize(bundle); size > kLargestManifest)
        throw transferError(kListTooLong, {{"size", bytesInWords(size)}, {"limit", bytesInWords(kLargestManifest)}});
    for (const auto& file : bundle.files)
        if (file.size > kLargestFile)
            throw transferError(kFileTooLarge, {{"file", file.place},
                                                {"size", bytesInWords(file.size)},
                                                {"platform", bundle.device},
                                                {"limit", bytesInWords(kLargestFile)}});
}

std::string fileUsedAsFolder(const std::vector<BundleFile>& files) {
    std::set<std::string, basic::NoCaseLess> folders;
    for (const auto& file : files)
        for (auto folder = folderOf(file.place); !folder.empty(); folder = folderOf(folder)) folders.insert(folder);
    const auto found =
        std::find_if(files.begin(), files.end(), [&](const BundleFile& file) { return folders.contains(file.place); });
    return found == files.end() ? std::string() : found->place;
}

std::string writeManifest(const Bundle& bundle) {
    Json object{{"schemaVersion", kManifestVersion}, {"kind", bundle.isRuntime ? "runtime" : "application"}};
    if (!bundle.isRuntime) {
        object["project"] = bundle.project;
        object["displayName"] = bundle.displayName;
    }
    object["version"] = bundle.version;
    if (!bundle.isRuntime) {
        object["device"] = bundle.device;
        object["references"] = bundle.references;
        writeSettings(bundle, object);
    }
    object["files"] = filesOf(bundle);
    return object.dump(kIndent, ' ', false, Json::error_handler_t::replace) + "\n";
}

std::int64_t manifestSize(Bundle bundle) {
    for (auto& file : bundle.files) file.sha256.assign(Sha256::kHexDigits, '0');
    return std::int64_t(writeManifest(bundle).size());
}

Bundle readManifest(std::string_view text) {
    try {
        return readBundle(Json::parse(text));
    } catch (const Json::exception& error) { malformed(error.what()); }
}

} // namespace qlpipe
