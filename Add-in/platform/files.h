#pragma once
// Scripting.FileSystemObject. All joining, splitting and comparing of paths is here.
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
    /// Reads one line without its end, which is CR LF, LF or a lone CR. Bytes map one to one to Windows-1252, so
    /// WriteLine reproduces them.
    virtual std::string ReadLine() = 0;
    /// Writes the line and CR LF.
    virtual void WriteLine(const std::string& line) = 0;
    /// After writing, raises an error if the contents could not be stored.
    virtual void Close() = 0;
};

enum FileAttribute : int { ReadOnlyAttribute = 1, HiddenAttribute = 2, DirectoryAttribute = 16 };
enum SpecialFolder : int { TemporaryFolder = 2 };

/// Arguments may contain either separator; results are native. A look-up finds a name in another letter case when there
/// is no exact match. Registered as "Scripting.FileSystemObject".
class FileSystemObject : public Object {
public:
    virtual bool FileExists(const std::string& path) const = 0;
    virtual bool FolderExists(const std::string& path) const = 0;
    /// FileAttribute bits of a file; error 53 if it does not exist.
    virtual int GetAttributes(const std::string& path) const = 0;
    /// Bytes; error 53 if the file does not exist.
    virtual std::int64_t GetSize(const std::string& path) const = 0;
    /// Time of the last change in nanoseconds since 1970; error 53 if the file does not exist.
    virtual std::int64_t GetDateLastModified(const std::string& path) const = 0;

    virtual std::string GetAbsolutePathName(const std::string& path) const = 0;
    /// "" for a root or a bare name; without a trailing separator.
    virtual std::string GetParentFolderName(const std::string& path) const = 0;
    /// The last part of the path.
    virtual std::string GetFileName(const std::string& path) const = 0;
    virtual std::string GetBaseName(const std::string& path) const = 0;
    /// Without the dot; "" for none.
    virtual std::string GetExtensionName(const std::string& path) const = 0;
    virtual std::string BuildPath(const std::string& folder, const std::string& name) const = 0;
    /// The path as on disk if the file exists in another letter case, otherwise its native form.
    virtual std::string Canonical(const std::string& path) const = 0;
    /// The file that a path leads to. A front end may keep some of a project's files elsewhere.
    virtual std::string PlaceOnDisk(const std::string& path) const { return Canonical(path); }
    virtual bool SamePath(const std::string& a, const std::string& b) const = 0;
    /// Whether both paths lead to one existing file or folder, by whatever links and letter case.
    virtual bool SameFile(const std::string& a, const std::string& b) const = 0;
    /// The folder's path with a trailing separator.
    virtual std::string WithSeparator(const std::string& folder) const = 0;
    virtual bool IsAbsolute(const std::string& path) const = 0;
    virtual std::string GetSpecialFolder(SpecialFolder folder) const = 0;
    /// The folder where dialogs start by default.
    virtual std::string HomeFolder() const = 0;
    /// Names of the files in the folder, sorted without regard to letter case; error 76 if it does not exist.
    virtual std::vector<std::string> Files(const std::string& folder) const = 0;

    virtual basic::Ref<TextStream> OpenTextFile(const std::string& path) = 0;
    virtual basic::Ref<TextStream> CreateTextFile(const std::string& path, bool overwrite) = 0;
    /// Returns the whole file unchanged.
    virtual std::string ReadBytes(const std::string& path) const = 0;
    /// Returns at most `most` bytes of the file from a position on, which counts from 0; "" beyond its end.
    virtual std::string ReadPart(const std::string& path, std::uint64_t at, std::size_t most) const = 0;
    /// Replaces the file atomically.
    virtual void WriteBytes(const std::string& path, const std::string& bytes) = 0;
    /// In nanoseconds since 1970, like GetDateLastModified.
    virtual void SetDateLastModified(const std::string& path, std::int64_t time) = 0;
    /// Replaces the destination atomically.
    virtual void CopyFile(const std::string& from, const std::string& to, bool overwrite) = 0;
    /// Creates one folder. Errors: 58 the name is taken, 76 there is no parent folder, 70 permission denied.
    virtual void CreateFolder(const std::string& path) = 0;
    /// Renames a file. A file that has the new name is replaced atomically and leaves its mode.
    virtual void MoveFile(const std::string& from, const std::string& to) = 0;
    /// Lets the owner of a file write it.
    virtual void MakeWritable(const std::string& path) = 0;
    /// `force` deletes read-only files too.
    virtual void DeleteFile(const std::string& path, bool force) = 0;
};

} // namespace fernwick
