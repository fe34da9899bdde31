#pragma once
// Scripting.FileSystemObject: the one place that joins, splits and compares paths.
#include "Add-in/platform/object.h"
#include "Basic/ref.h"
#include <cstdint>
#include <string>
#include <vector>

namespace fernwick {

/// An open text file. Errors 62 past the end, 54 for the wrong mode.
class TextStream : public Object {
public:
    virtual bool AtEndOfStream() const = 0;
    /// One line without its end, which is CR LF, LF or a lone CR. Bytes become text one to one in
    /// Windows-1252, so that WriteLine gives the same bytes back.
    virtual std::string ReadLine() = 0;
    /// The line and CR LF.
    virtual void WriteLine(const std::string& line) = 0;
    /// A stream that was written reports here what could not be stored.
    virtual void Close() = 0;
};

enum FileAttribute : int { ReadOnlyAttribute = 1, HiddenAttribute = 2, DirectoryAttribute = 16 };
enum SpecialFolder : int { TemporaryFolder = 2 };

/// Paths that come in may hold either separator; paths that go out are native. A look-up finds a name whose
/// letter case differs when there is no exact match. Registered as "Scripting.FileSystemObject".
class FileSystemObject : public Object {
public:
    virtual bool FileExists(const std::string& path) const = 0;
    virtual bool FolderExists(const std::string& path) const = 0;
    /// FileAttribute bits of a file; error 53 where there is none.
    virtual int GetAttributes(const std::string& path) const = 0;
    /// Bytes; error 53 where there is no file.
    virtual std::int64_t GetSize(const std::string& path) const = 0;
    /// Time of the last change in nanoseconds since 1970; error 53 where there is no file.
    virtual std::int64_t GetDateLastModified(const std::string& path) const = 0;

    virtual std::string GetAbsolutePathName(const std::string& path) const = 0;
    /// "" for a root or a bare name; no separator at the end.
    virtual std::string GetParentFolderName(const std::string& path) const = 0;
    /// The last part of the path.
    virtual std::string GetFileName(const std::string& path) const = 0;
    virtual std::string GetBaseName(const std::string& path) const = 0;
    /// Without the point; "" for none.
    virtual std::string GetExtensionName(const std::string& path) const = 0;
    virtual std::string BuildPath(const std::string& folder, const std::string& name) const = 0;
    /// The path as it is on disk where the file exists in another letter case, else the native form of it.
    virtual std::string Canonical(const std::string& path) const = 0;
    virtual bool SamePath(const std::string& a, const std::string& b) const = 0;
    /// What stands before a relative name in a folder's path: the path with its separator.
    virtual std::string WithSeparator(const std::string& folder) const = 0;
    virtual bool IsAbsolute(const std::string& path) const = 0;
    virtual std::string GetSpecialFolder(SpecialFolder folder) const = 0;
    /// Where a dialog starts that has no other place to start from.
    virtual std::string HomeFolder() const = 0;
    /// Names in the folder, sorted without regard to letter case; error 76 where there is no folder.
    virtual std::vector<std::string> Files(const std::string& folder) const = 0;

    virtual basic::Ref<TextStream> OpenTextFile(const std::string& path) = 0;
    virtual basic::Ref<TextStream> CreateTextFile(const std::string& path, bool overwrite) = 0;
    /// The whole file as it is.
    virtual std::string ReadBytes(const std::string& path) const = 0;
    /// The file's first bytes, at most so many.
    virtual std::string ReadHead(const std::string& path, std::size_t most) const = 0;
    /// Replaces the file as a whole or not at all.
    virtual void WriteBytes(const std::string& path, const std::string& bytes) = 0;
    /// Nanoseconds since 1970, as GetDateLastModified gives them.
    virtual void SetDateLastModified(const std::string& path, std::int64_t time) = 0;
    /// Replaces the destination as a whole or not at all.
    virtual void CopyFile(const std::string& from, const std::string& to, bool overwrite) = 0;
    /// `force` deletes read-only files too.
    virtual void DeleteFile(const std::string& path, bool force) = 0;
};

} // namespace fernwick
