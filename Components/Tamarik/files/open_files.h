#pragma once
// The files that a program has open, and its current folder.
#include "Components/Tamarik/files/open_file.h"
#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace tamarik {

class OpenFiles {
public:
    explicit OpenFiles(const std::shared_ptr<FileStore>& store) : store_(store) {}

    [[nodiscard]] FileStore& store() const { return *store_; }

    struct Wish {
        FileMode mode;
        FileAccess access;
        std::int32_t recordLength; ///< 0 for the usual one
    };
    /// Errors 52, 53, 55, 59, 67, 70, 75 and 76.
    void open(std::string_view path, std::int32_t number, const Wish& wish);
    /// Opens a file that has no number, by its path in the store. It counts as open until nothing refers to it.
    /// Errors as above.
    [[nodiscard]] std::shared_ptr<OpenFile> openStream(const std::string& stored, FileMode mode);
    /// Does nothing for a number that is not in use.
    void close(std::int32_t number);
    void closeAll();
    /// Error 52.
    [[nodiscard]] OpenFile& at(std::int32_t number) const;
    /// A number that is not in use. Error 67.
    [[nodiscard]] std::int32_t freeNumber(std::int32_t first, std::int32_t last) const;
    [[nodiscard]] bool isOpen(std::string_view path) const;
    /// Writes what was collected for a file, which then has its size.
    void flush(std::string_view path);

    /// The path in the store. Error 52.
    [[nodiscard]] std::string resolve(std::string_view path) const;
    /// The same with the last name as written, also if a file has that name in other letter cases.
    [[nodiscard]] std::string resolveAsWritten(std::string_view path) const;
    /// What the pattern at the end of a path fits, by name; only files unless `withFolders`.
    [[nodiscard]] std::vector<std::string> matches(std::string_view path, bool withFolders) const;
    /// The current folder: "" at the top, otherwise as "\A\B".
    [[nodiscard]] std::string currentFolder() const;
    /// Error 76.
    void changeFolder(std::string_view path);

    std::vector<std::string> found; ///< what Dir returns next, the last one first
    bool hasFound = false;          ///< Dir may be called without a path

private:
    [[nodiscard]] std::unique_ptr<OpenFile> opened(std::string stored, const Wish& wish) const;
    [[nodiscard]] std::vector<OpenFile*> openAt(std::string_view path) const;

    const std::shared_ptr<FileStore>& store_;
    std::map<std::int32_t, std::unique_ptr<OpenFile>> files_;
    std::vector<std::weak_ptr<OpenFile>> streams_;
    std::vector<std::string> current_;
};

} // namespace tamarik
