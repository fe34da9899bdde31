#include "Apps/fernwick/run/output_files.h"
#include "Apps/common/file_names.h"
#include "Apps/fernwick/options/exit_status.h"
#include "Apps/fernwick/options/refusal.h"
#include "Host/files/atomic_save.h"
#include "Host/files/native_path.h"
#include <filesystem>

namespace cli {

namespace fs = std::filesystem;

namespace {

bool isOutput(const std::string& name) {
    return apps::hasExtension(name, ".qlx") || apps::hasExtension(name, ".qlpkg");
}

} // namespace

bool makesImage(const Options& options) { return options.verb != "validate"; }

std::string reportNameOf(const std::string& project) { return host::baseNameOf(project) + ".report.json"; }

void requireWritableFolder(const std::string& folder) {
    if (host::isReadOnly(folder)) throw Refusal(kMachineTrouble, folder + ": the folder is read-only");
}

void createOutputFolder(const std::string& output) {
    std::error_code failed;
    const auto folder = fs::absolute(output).lexically_normal();
    fs::create_directories(folder, failed);
    if (failed) throw Refusal(kMachineTrouble, folder.string() + ": cannot be created: " + failed.message());
    requireWritableFolder(folder);
}

void OutputFiles::redirect(const std::string& projectFolder, const std::string& output) {
    std::error_code ignored;
    output_ = fs::weakly_canonical(fs::absolute(output, ignored), ignored).string();
    projectFolder_ = Canonical(projectFolder);
}

int OutputFiles::GetAttributes(const std::string& path) const {
    const int attributes = FileSystem::GetAttributes(path);
    return storesNothing_ ? attributes & ~int(fernwick::ReadOnlyAttribute) : attributes;
}

std::string OutputFiles::PlaceOnDisk(const std::string& path) const {
    auto place = Canonical(path);
    const bool moved = !output_.empty() && isOutput(place) && host::folderOf(place) == projectFolder_;
    return moved ? host::pathIn(output_, host::fileNameOf(place)) : place;
}

std::vector<std::string> OutputFiles::Files(const std::string& folder) const {
    auto names = FileSystem::Files(folder);
    if (output_.empty() || Canonical(folder) != projectFolder_) return names;
    std::erase_if(names, isOutput);
    for (const auto& name : FileSystem::Files(output_))
        if (isOutput(name)) names.push_back(name);
    return names;
}

} // namespace cli
