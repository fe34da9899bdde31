#include "Components/Tamarik/ports/memory_store.h"
#include "Basic/runtime_error.h"
#include <algorithm>
#include <utility>

namespace tamarik {

namespace {

constexpr std::uint64_t kMostFileBytes = 0x7FFFFFFF;

class MemoryFile final : public StoredFile {
public:
    explicit MemoryFile(std::shared_ptr<std::string> bytes) : bytes_(std::move(bytes)) {}

    std::size_t read(std::uint64_t at, char* to, std::size_t count) override {
        if (at >= bytes_->size()) return 0;
        return bytes_->copy(to, count, static_cast<std::size_t>(at));
    }
    void write(std::uint64_t at, std::string_view bytes) override {
        if (at + bytes.size() > kMostFileBytes) throw basic::RuntimeError(basic::kDiskFull);
        const auto begin = static_cast<std::size_t>(at);
        if (begin + bytes.size() > bytes_->size()) bytes_->resize(begin + bytes.size());
        std::copy(bytes.begin(), bytes.end(), bytes_->begin() + static_cast<std::ptrdiff_t>(begin));
    }
    [[nodiscard]] std::uint64_t size() const override { return bytes_->size(); }

private:
    std::shared_ptr<std::string> bytes_;
};

} // namespace

std::string folderOf(std::string_view path) {
    const std::size_t end = path.rfind('/');
    return std::string(path.substr(0, end == std::string_view::npos ? 0 : end));
}

std::string nameOf(std::string_view path) { return std::string(path.substr(path.rfind('/') + 1)); }

void MemoryStore::requireFolder(const std::string& path) const {
    const auto info = find(path);
    if (!info || !info->isFolder) throw basic::RuntimeError(basic::kPathNotFound);
}

MemoryStore::Entry& MemoryStore::entry(const std::string& path) {
    requireFolder(folderOf(path));
    const auto found = entries_.find(path);
    if (found == entries_.end()) throw basic::RuntimeError(basic::kFileNotFound);
    return found->second;
}

std::string& MemoryStore::contents(const std::string& path) {
    const auto& bytes = entry(path).bytes;
    if (!bytes) throw basic::RuntimeError(basic::kFileNotFound);
    return *bytes;
}

std::unique_ptr<StoredFile> MemoryStore::open(const std::string& path, const FileUse& use) {
    if (use.creates && !find(path)) {
        requireFolder(folderOf(path));
        entries_[path].bytes = std::make_shared<std::string>();
    }
    Entry& file = entry(path);
    if (!file.bytes || (use.writes && file.isReadOnly)) throw basic::RuntimeError(basic::kPathFileAccessError);
    if (use.empties) file.bytes->clear();
    return std::make_unique<MemoryFile>(file.bytes);
}

std::optional<FileInfo> MemoryStore::find(const std::string& path) const {
    if (path.empty()) return FileInfo{true, false, 0, changed};
    const auto found = entries_.find(path);
    if (found == entries_.end()) return std::nullopt;
    const Entry& entry = found->second;
    return FileInfo{!entry.bytes, entry.isReadOnly, entry.bytes ? entry.bytes->size() : 0, changed};
}

std::vector<std::string> MemoryStore::names(const std::string& folder) const {
    std::vector<std::string> names;
    for (const auto& [path, entry] : entries_)
        if (folderOf(path) == folder) names.push_back(nameOf(path));
    return names;
}

void MemoryStore::remove(const std::string& file) {
    if (entry(file).isReadOnly) throw basic::RuntimeError(basic::kPathFileAccessError);
    entries_.erase(file);
}

void MemoryStore::rename(const std::string& from, const std::string& to) {
    requireFolder(folderOf(to));
    (void)entry(from);
    const std::string inside = from + "/";
    std::vector<std::pair<std::string, Entry>> moved;
    std::erase_if(entries_, [&](const auto& each) {
        if (each.first != from && !each.first.starts_with(inside)) return false;
        moved.emplace_back(to + each.first.substr(from.size()), each.second);
        return true;
    });
    entries_.insert(moved.begin(), moved.end());
}

void MemoryStore::makeFolder(const std::string& path) {
    requireFolder(folderOf(path));
    if (find(path)) throw basic::RuntimeError(basic::kPathFileAccessError);
    entries_[path] = {};
}

void MemoryStore::removeFolder(const std::string& path) {
    requireFolder(path);
    if (path.empty() || !names(path).empty()) throw basic::RuntimeError(basic::kPathFileAccessError);
    entries_.erase(path);
}

void MemoryStore::setReadOnly(const std::string& path, bool isReadOnly) { entry(path).isReadOnly = isReadOnly; }

} // namespace tamarik
