#pragma once
// Files that end with the program, for tests and where there is no disk.
#include "Components/Tamarik/ports/file_store.h"
#include <map>

namespace tamarik {

class MemoryStore final : public FileStore {
public:
    [[nodiscard]] std::unique_ptr<StoredFile> open(const std::string& path, const FileUse& use) override;
    [[nodiscard]] std::optional<FileInfo> find(const std::string& path) const override;
    [[nodiscard]] std::vector<std::string> names(const std::string& folder) const override;
    void remove(const std::string& file) override;
    void rename(const std::string& from, const std::string& to) override;
    void makeFolder(const std::string& path) override;
    void removeFolder(const std::string& path) override;
    void setReadOnly(const std::string& path, bool isReadOnly) override;

    /// The bytes of a file; error 53.
    [[nodiscard]] std::string& contents(const std::string& path);

    basic::Date changed; ///< what all files have

private:
    struct Entry {
        std::shared_ptr<std::string> bytes; ///< null for a folder
        bool isReadOnly = false;
    };

    void requireFolder(const std::string& path) const;
    Entry& entry(const std::string& path);

    std::map<std::string, Entry> entries_;
};

} // namespace tamarik
