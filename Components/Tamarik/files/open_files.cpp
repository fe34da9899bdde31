#include "Components/Tamarik/files/open_files.h"
#include "Basic/case_folding.h"
#include "Basic/runtime_error.h"
#include "Components/Tamarik/files/paths.h"
#include "Components/Tamarik/files/stored_files.h"
#include <algorithm>

namespace tamarik {

namespace {

constexpr std::int32_t kMostFiles = 511, kUsualRecord = 128, kLongestRecord = 32767;

bool isSequential(FileMode mode) {
    return mode == FileMode::Input || mode == FileMode::Output || mode == FileMode::Append;
}

OpenFile::Traits traitsOf(std::string path, const OpenFiles::Wish& wish) {
    OpenFile::Traits traits{std::move(path), wish.mode, false, false, 0};
    const bool isBoth = wish.access == FileAccess::Default || wish.access == FileAccess::ReadWrite;
    traits.reads =
        wish.mode == FileMode::Input || (!isSequential(wish.mode) && (isBoth || wish.access == FileAccess::Read));
    traits.writes = wish.mode == FileMode::Output || wish.mode == FileMode::Append ||
                    (!isSequential(wish.mode) && (isBoth || wish.access == FileAccess::Write));
    if (wish.recordLength < 0 || wish.recordLength > kLongestRecord) throw basic::RuntimeError(basic::kBadRecordLength);
    traits.recordLength = static_cast<std::uint32_t>(wish.recordLength == 0 ? kUsualRecord : wish.recordLength);
    return traits;
}

FileUse useOf(const OpenFile::Traits& traits) {
    return {traits.reads, traits.writes, traits.writes, traits.mode == FileMode::Output};
}

} // namespace

void OpenFiles::open(std::string_view path, std::int32_t number, const Wish& wish) {
    if (number < 1 || number > kMostFiles) throw basic::RuntimeError(basic::kBadFileNameOrNumber);
    if (files_.contains(number)) throw basic::RuntimeError(basic::kFileAlreadyOpen);
    files_.emplace(number, opened(resolve(path), wish));
}

std::shared_ptr<OpenFile> OpenFiles::openStream(const std::string& stored, FileMode mode) {
    std::erase_if(streams_, [](const auto& each) { return each.expired(); });
    if (streams_.size() >= kMostFiles) throw basic::RuntimeError(basic::kTooManyFiles);
    std::shared_ptr<OpenFile> stream = opened(stored, {mode, FileAccess::Default, 0});
    streams_.push_back(stream);
    return stream;
}

std::unique_ptr<OpenFile> OpenFiles::opened(std::string stored, const Wish& wish) const {
    OpenFile::Traits traits = traitsOf(std::move(stored), wish);
    const auto replaces = [](FileMode mode) { return mode == FileMode::Output || mode == FileMode::Append; };
    for (const OpenFile* const file : openAt(traits.path))
        if (replaces(wish.mode) || replaces(file->traits().mode)) throw basic::RuntimeError(basic::kFileAlreadyOpen);
    std::unique_ptr<StoredFile> opened;
    try {
        opened = store().open(traits.path, useOf(traits));
    } catch (const basic::RuntimeError& error) {
        // Without Access, a file that may only be read is opened for that.
        const bool isUsual = wish.access == FileAccess::Default && traits.reads && traits.writes;
        if (!isUsual || error.Number != basic::kPathFileAccessError) throw;
        traits.writes = false;
        opened = store().open(traits.path, useOf(traits));
    }
    auto file = std::make_unique<OpenFile>(std::move(opened), std::move(traits));
    if (wish.mode == FileMode::Append) file->seek(file->size());
    return file;
}

std::vector<OpenFile*> OpenFiles::openAt(std::string_view path) const {
    std::vector<OpenFile*> found;
    for (const auto& [number, file] : files_)
        if (file->traits().path == path) found.push_back(file.get());
    for (const auto& each : streams_)
        if (const auto stream = each.lock(); stream && stream->traits().path == path) found.push_back(stream.get());
    return found;
}

void OpenFiles::close(std::int32_t number) {
    const auto found = files_.find(number);
    if (found == files_.end()) return;
    const auto file = std::move(found->second);
    files_.erase(found);
    file->flush();
}

void OpenFiles::closeAll() {
    while (!files_.empty()) close(files_.begin()->first);
}

OpenFile& OpenFiles::at(std::int32_t number) const {
    const auto found = files_.find(number);
    if (found == files_.end()) throw basic::RuntimeError(basic::kBadFileNameOrNumber);
    return *found->second;
}

std::int32_t OpenFiles::freeNumber(std::int32_t first, std::int32_t last) const {
    for (std::int32_t number = first; number <= last; ++number)
        if (!files_.contains(number)) return number;
    throw basic::RuntimeError(basic::kTooManyFiles);
}

bool OpenFiles::isOpen(std::string_view path) const { return !openAt(path).empty(); }

void OpenFiles::flush(std::string_view path) {
    for (OpenFile* const file : openAt(path)) file->flush();
}

std::string OpenFiles::resolve(std::string_view path) const {
    const auto names = namesOf(path, current_);
    if (std::any_of(names.begin(), names.end(), isPattern)) throw basic::RuntimeError(basic::kBadFileNameOrNumber);
    return storedPath(store(), names);
}

std::string OpenFiles::resolveAsWritten(std::string_view path) const {
    const std::string stored = resolve(path);
    const auto names = namesOf(path, current_);
    return names.empty() ? stored : stored.substr(0, stored.find_last_of('/') + 1) + names.back();
}

std::vector<std::string> OpenFiles::matches(std::string_view path, bool withFolders) const {
    auto names = namesOf(path, current_);
    const bool isWhole = names.empty() || path.ends_with('\\') || path.ends_with('/');
    const std::string pattern = isWhole ? "*" : names.back();
    if (!isWhole) names.pop_back();
    const std::string folder = storedPath(store(), names);
    std::vector<std::string> found;
    for (const auto& name : store().names(folder)) {
        if (!fitsPattern(name, pattern)) continue;
        const std::string whole = pathIn(folder, name);
        const auto info = store().find(whole);
        if (info && (withFolders || !info->isFolder)) found.push_back(whole);
    }
    std::sort(found.begin(), found.end(), basic::NoCaseLess());
    return found;
}

std::string OpenFiles::currentFolder() const {
    std::string path;
    for (const auto& name : current_) path += "\\" + name;
    return path;
}

void OpenFiles::changeFolder(std::string_view path) {
    const std::string stored = resolve(path);
    const auto info = store().find(stored);
    if (!info || !info->isFolder) throw basic::RuntimeError(basic::kPathNotFound);
    current_ = stored.empty() ? std::vector<std::string>() : namesOf(stored, {});
}

} // namespace tamarik
