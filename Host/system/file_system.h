#pragma once
// The file system object on this machine.
#include "Add-in/platform/files.h"
#include <string>

namespace host {

/// Errors as the file system object of scripts has them: 53 no file, 58 already there, 70 permission denied (read-only
/// files count for the superuser too), 76 no folder, 61 disk full, 57 device failure; source "VBIDE", the last system
/// error filled in.
class FileSystem : public fernwick::FileSystemObject {
public:
    FileSystem() = default;
    /// Takes the temporary folder away with all that is in it.
    ~FileSystem() override;

    bool FileExists(const std::string& path) const override;
    bool FolderExists(const std::string& path) const override;
    int GetAttributes(const std::string& path) const override;
    std::int64_t GetSize(const std::string& path) const override;
    std::int64_t GetDateLastModified(const std::string& path) const override;

    std::string GetAbsolutePathName(const std::string& path) const override;
    std::string GetParentFolderName(const std::string& path) const override;
    std::string GetFileName(const std::string& path) const override;
    std::string GetBaseName(const std::string& path) const override;
    std::string GetExtensionName(const std::string& path) const override;
    std::string BuildPath(const std::string& folder, const std::string& name) const override;
    /// Absolute; as far as it exists in the letter case of the disk, the rest as given. "" for "".
    std::string Canonical(const std::string& path) const override;
    bool SamePath(const std::string& a, const std::string& b) const override;
    std::string WithSeparator(const std::string& folder) const override;
    bool IsAbsolute(const std::string& path) const override;
    /// The temporary folder is private to this process. Error 5 for any other.
    std::string GetSpecialFolder(fernwick::SpecialFolder folder) const override;
    std::string HomeFolder() const override;
    std::vector<std::string> Files(const std::string& folder) const override;

    basic::Ref<fernwick::TextStream> OpenTextFile(const std::string& path) override;
    /// The file is there when the stream is closed or let go of, all at once.
    basic::Ref<fernwick::TextStream> CreateTextFile(const std::string& path, bool overwrite) override;
    std::string ReadBytes(const std::string& path) const override;
    std::string ReadHead(const std::string& path, std::size_t most) const override;
    void WriteBytes(const std::string& path, const std::string& bytes) override;
    void SetDateLastModified(const std::string& path, std::int64_t time) override;
    /// The copy has the source's time; a new one its mode, too. A destination that ends with a separator is a folder.
    void CopyFile(const std::string& from, const std::string& to, bool overwrite) override;
    void DeleteFile(const std::string& path, bool force) override;

private:
    mutable std::string temporary_;
};

} // namespace host
