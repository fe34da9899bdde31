#pragma once
// The files of an application: one folder, which its paths do not leave.
#include "Basic/types.h"
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tamarik {

struct FileInfo {
    bool isFolder = false, isReadOnly = false;
    std::uint64_t size = 0;
    basic::Date changed; ///< local time
};

struct FileUse {
    bool reads = false, writes = false;
    bool creates = false; ///< if there is none
    bool empties = false;
};

/// An open file, which its destruction closes.
class StoredFile {
public:
    virtual ~StoredFile() = default;

    /// Returns how many bytes there were, fewer at the end.
    virtual std::size_t read(std::uint64_t at, char* to, std::size_t count) = 0;
    /// Bytes between the end and `at` become 0.
    virtual void write(std::uint64_t at, std::string_view bytes) = 0;
    [[nodiscard]] virtual std::uint64_t size() const = 0;
};

/// Paths are UTF-8, relative to the folder, with "/" between names and without "." and ".."; "" is the folder. Letter case
/// counts. Errors are those of the language: 53, 57, 58, 61, 70, 75 and 76.
class FileStore {
public:
    virtual ~FileStore() = default;

    [[nodiscard]] virtual std::unique_ptr<StoredFile> open(const std::string& path, const FileUse& use) = 0;
    [[nodiscard]] virtual std::optional<FileInfo> find(const std::string& path) const = 0;
    /// What a folder contains, in any order; nothing if it cannot be read.
    [[nodiscard]] virtual std::vector<std::string> names(const std::string& folder) const = 0;
    virtual void remove(const std::string& file) = 0;
    /// The new name is not in use.
    virtual void rename(const std::string& from, const std::string& to) = 0;
    virtual void makeFolder(const std::string& path) = 0;
    virtual void removeFolder(const std::string& path) = 0;
    virtual void setReadOnly(const std::string& path, bool isReadOnly) = 0;
};

/// The folder and the name of a path.
[[nodiscard]] std::string folderOf(std::string_view path);
[[nodiscard]] std::string nameOf(std::string_view path);

} // namespace tamarik
