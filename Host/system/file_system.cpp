#include "Host/system/file_system.h"
#include "Basic/case_folding.h"
#include "Host/files/atomic_save.h"
#include "Host/files/path_lookup.h"
#include "Host/files/text_file.h"
#include "Host/system/file_error.h"
#include "Host/system/file_state.h"
#include "Host/system/home_folder.h"
#include "Host/system/path_text.h"
#include "Host/system/text_stream.h"
#include <algorithm>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

namespace host {
namespace {

constexpr mode_t kAllPermissions = 07777;

std::string currentFolder() {
    std::error_code error;
    const auto folder = std::filesystem::current_path(error);
    return error ? "/" : folder.string();
}

} // namespace

bool FileSystem::FileExists(const std::string& path) const {
    const auto state = path.empty() ? std::nullopt : stateOf(PlaceOnDisk(path));
    return state && !S_ISDIR(state->st_mode);
}

bool FileSystem::FolderExists(const std::string& path) const {
    const auto state = path.empty() ? std::nullopt : stateOf(PlaceOnDisk(path));
    return state && S_ISDIR(state->st_mode);
}

int FileSystem::GetAttributes(const std::string& path) const {
    const auto file = PlaceOnDisk(path);
    fileState(file);
    return (isReadOnly(file) ? fernwick::ReadOnlyAttribute : 0) |
           (lastName(file).starts_with('.') ? fernwick::HiddenAttribute : 0);
}

std::int64_t FileSystem::GetSize(const std::string& path) const { return fileState(PlaceOnDisk(path)).st_size; }

std::int64_t FileSystem::GetDateLastModified(const std::string& path) const {
    const auto time = fileState(PlaceOnDisk(path)).st_mtim;
    return std::int64_t{time.tv_sec} * kNanosecondsPerSecond + time.tv_nsec;
}

std::string FileSystem::GetAbsolutePathName(const std::string& path) const {
    return absolutePath(currentFolder(), path);
}
std::string FileSystem::GetParentFolderName(const std::string& path) const { return parentFolderName(path); }
std::string FileSystem::GetFileName(const std::string& path) const { return lastName(path); }
std::string FileSystem::GetBaseName(const std::string& path) const { return baseName(path); }
std::string FileSystem::GetExtensionName(const std::string& path) const { return extensionName(path); }
std::string FileSystem::BuildPath(const std::string& folder, const std::string& name) const {
    return joinedPath(folder, name);
}

std::string FileSystem::Canonical(const std::string& path) const {
    return path.empty() ? "" : PathLookup().find(currentFolder(), path);
}

bool FileSystem::SamePath(const std::string& a, const std::string& b) const { return Canonical(a) == Canonical(b); }

bool FileSystem::SameFile(const std::string& a, const std::string& b) const {
    const auto one = stateOf(PlaceOnDisk(a)), other = stateOf(PlaceOnDisk(b));
    return one && other && one->st_dev == other->st_dev && one->st_ino == other->st_ino;
}

std::string FileSystem::WithSeparator(const std::string& folder) const {
    return folder.empty() ? "" : joinedPath(folder, "");
}

bool FileSystem::IsAbsolute(const std::string& path) const { return isAbsolutePath(path); }

std::string FileSystem::GetSpecialFolder(fernwick::SpecialFolder folder) const {
    if (folder != fernwick::TemporaryFolder) throw hostError(basic::kInvalidProcedureCall);
    return temporary_.path();
}

std::string FileSystem::HomeFolder() const { return homeFolder(); }

std::vector<std::string> FileSystem::Files(const std::string& folder) const {
    const auto path = Canonical(folder);
    std::vector<std::string> names;
    std::error_code error;
    std::filesystem::directory_iterator at(path, error), end;
    if (error && error.value() == EACCES) throw scriptError(EACCES, "cannot be listed", path);
    if (error) throw hostError(basic::kPathNotFound, path + ": there is no such folder");
    for (; !error && at != end; at.increment(error)) {
        std::error_code ignored;
        if (!at->is_directory(ignored)) names.push_back(at->path().filename().string());
    }
    std::sort(names.begin(), names.end());
    std::stable_sort(names.begin(), names.end(), basic::NoCaseLess{});
    return names;
}

basic::Ref<fernwick::TextStream> FileSystem::OpenTextFile(const std::string& path) {
    return basic::make<TextReader>(ReadBytes(path));
}

basic::Ref<fernwick::TextStream> FileSystem::CreateTextFile(const std::string& path, bool overwrite) {
    const auto file = PlaceOnDisk(path);
    requirePlace(file, overwrite);
    return basic::make<TextWriter>(file);
}

std::string FileSystem::ReadBytes(const std::string& path) const {
    return withScriptErrors([&] { return readFile(PlaceOnDisk(path)).bytes; });
}

std::string FileSystem::ReadPart(const std::string& path, std::uint64_t at, std::size_t most) const {
    return withScriptErrors([&] { return readFilePart(PlaceOnDisk(path), at, most); });
}

void FileSystem::WriteBytes(const std::string& path, const std::string& bytes) {
    const auto file = PlaceOnDisk(path);
    requirePlace(file, true);
    withScriptErrors([&] { atomicSave(file, bytes); });
}

void FileSystem::SetDateLastModified(const std::string& path, std::int64_t time) {
    const auto file = PlaceOnDisk(path);
    fileState(file);
    setFileTime(file, time);
}

void FileSystem::CopyFile(const std::string& from, const std::string& to, bool overwrite) {
    const auto source = PlaceOnDisk(from);
    const bool intoFolder = to.ends_with('/') || to.ends_with('\\');
    const auto target = PlaceOnDisk(intoFolder ? joinedPath(to, lastName(source)) : to);
    const auto state = fileState(source);
    if (source == target) return;
    requirePlace(target, overwrite);
    const bool isNew = !stateOf(target);
    const auto bytes = ReadBytes(source);
    withScriptErrors([&] { atomicSave(target, bytes); });
    copyTimesAndMode(state, target, isNew);
}

void FileSystem::CreateFolder(const std::string& path) {
    constexpr mode_t kNewFolder = 0777;
    const auto folder = PlaceOnDisk(path);
    if (stateOf(folder)) throw hostError(basic::kFileAlreadyExists, folder + ": already exists");
    if (::mkdir(folder.c_str(), kNewFolder) == 0) return;
    if (errno == ENOENT) throw hostError(basic::kPathNotFound, folder + ": its parent folder does not exist");
    throw scriptError(errno, "cannot be created", folder);
}

void FileSystem::MoveFile(const std::string& from, const std::string& to) {
    const auto source = PlaceOnDisk(from), target = PlaceOnDisk(to);
    fileState(source);
    requirePlace(target, true);
    withScriptErrors([&] { atomicMove(source, target); });
}

void FileSystem::MakeWritable(const std::string& path) {
    const auto file = PlaceOnDisk(path);
    if (::chmod(file.c_str(), (fileState(file).st_mode & kAllPermissions) | S_IWUSR) != 0)
        throw scriptError(errno, "cannot be made writable", file);
}

void FileSystem::DeleteFile(const std::string& path, bool force) {
    const auto file = PlaceOnDisk(path);
    fileState(file);
    if (!force && isReadOnly(file)) throw scriptError(EACCES, "is read-only", file);
    if (::unlink(file.c_str()) != 0) throw scriptError(errno, "cannot be deleted", file);
}

} // namespace host
