#pragma once
// The file system object on this machine.
#include "Add-in/platform/files.h"
#include "Host/system/temporary_folder.h"
#include <string>

namespace host {

/// Errors are those of the scripting file system object: 53 no such file, 58 the file exists, 70 permission denied
/// (read-only files are refused even for the superuser), 76 no such folder, 61 disk full, 57 device failure; source
/// "VBIDE" and the last system error.
class FileSystem : public fernwick::FileSystemObject {
public:
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
    /// Returns the absolute path. Its existing part has the letter case on disk, the rest is as given. "" for "".
    std::string Canonical(const std::string& path) const override;
    bool SamePath(const std::string& a, const std::string& b) const override;
    bool SameFile(const std::string& a, const std::string& b) const override;
    std::string WithSeparator(const std::string& folder) const override;
    bool IsAbsolute(const std::string& path) const override;
    /// Supports only the temporary folder, which is private to this process. Error 5 for any other.
    std::string GetSpecialFolder(fernwick::SpecialFolder folder) const override;
    std::string HomeFolder() const override;
    std::vector<std::string> Files(const std::string& folder) const override;

    basic::Ref<fernwick::TextStream> OpenTextFile(const std::string& path) override;
    /// The file is written atomically when the stream is closed or released.
    basic::Ref<fernwick::TextStream> CreateTextFile(const std::string& path, bool overwrite) override;
    std::string ReadBytes(const std::string& path) const override;
    std::string ReadPart(const std::string& path, std::uint64_t at, std::size_t most) const override;
    void WriteBytes(const std::string& path, const std::string& bytes) override;
    void SetDateLastModified(const std::string& path, std::int64_t time) override;
    /// The copy has the source's times, and a new file also its mode. A destination that ends with a separator is a
    /// folder.
    void CopyFile(const std::string& from, const std::string& to, bool overwrite) override;
    void CreateFolder(const std::string& path) override;
    void MoveFile(const std::string& from, const std::string& to) override;
    void MakeWritable(const std::string& path) override;
    void DeleteFile(const std::string& path, bool force) override;

private:
    mutable TemporaryFolder temporary_;
};

} // namespace host
