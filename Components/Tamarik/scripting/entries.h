#pragma once
// The classes File and Folder of the library Scripting, and what lists them.
#include "Components/Tamarik/objects/walk.h"
#include <string>
#include <utility>
#include <vector>

namespace tamarik {

/// A file or folder by its path in the store. It may be deleted meanwhile; its members then fail.
class Entry : public LibraryObject {
public:
    explicit Entry(std::string stored) : path(std::move(stored)) {}
    [[nodiscard]] std::string_view defaultMember() const override { return "Path"; }
    void releaseMembers(Heap&) override {}

    std::string path; ///< Move and a new name change it
};

class File final : public Entry {
public:
    using Entry::Entry;
    [[nodiscard]] std::string_view className() const override { return "File"; }
    [[nodiscard]] std::span<const LibraryMember> members() const override;
};

class Folder final : public Entry {
public:
    using Entry::Entry;
    [[nodiscard]] std::string_view className() const override { return "Folder"; }
    [[nodiscard]] std::span<const LibraryMember> members() const override;
};

/// The files of a folder, or its folders.
class EntryList final : public LibraryObject {
public:
    EntryList(const FileStore& store, std::string folder, bool hasFolders)
        : store_(store), folder_(std::move(folder)), hasFolders_(hasFolders) {}

    [[nodiscard]] std::string_view className() const override { return hasFolders_ ? "Folders" : "Files"; }
    [[nodiscard]] std::span<const LibraryMember> members() const override;
    [[nodiscard]] std::string_view defaultMember() const override { return "Item"; }
    /// Walks over what there is now.
    [[nodiscard]] Object* walk(Heap& heap) override;
    void releaseMembers(Heap&) override {}

    [[nodiscard]] const std::string& folder() const { return folder_; }
    [[nodiscard]] bool hasFolders() const { return hasFolders_; }
    /// Paths by name, ignoring case. Error 76 if the folder is missing.
    [[nodiscard]] std::vector<std::string> paths() const;

private:
    const FileStore& store_;
    std::string folder_;
    bool hasFolders_;
};

/// A new File or Folder.
[[nodiscard]] Object* makeEntry(Heap& heap, const std::string& path, bool isFolder);

} // namespace tamarik
