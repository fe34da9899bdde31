#pragma once
// Atomic replacement of a file: readers see the old bytes or the new bytes, even after a crash.
#include "Host/files/text_file.h"
#include <optional>
#include <string>
#include <string_view>

namespace host {

/// Returns true if a save over this file must fail: no write bit in its mode, a read-only file system, or no access.
/// The mode counts for the superuser too. A file that does not exist is not read-only.
bool isReadOnly(const std::string& path);

/// Returns the stamp of the file at `path` if another program changed it since it was read as `asRead`, so that it
/// holds neither the bytes read then nor `bytes`. Returns nothing if it is unchanged or no longer exists. Errors as
/// readFile.
std::optional<FileStamp> changedSince(const std::string& path, const FileStamp& asRead, std::string_view bytes = {});

/// Replaces the contents of `path` with `bytes`. Follows symbolic links and keeps mode and owner. A file that already
/// holds these bytes is not touched. `asRead` is the stamp of the file that the caller read; none if there was no file
/// or the user agreed to replace it. On failure the old file is unchanged and no temporary file remains.
/// Errors: 75 read-only, a folder, or changed on disk since `asRead`; 76 the folder does not exist; 61 the disk is
/// full; 57 the device failed.
FileStamp atomicSave(const std::string& path, std::string_view bytes, const std::optional<FileStamp>& asRead = {});

/// Renames `from` to `to`, on another file system too. A file that is replaced leaves its mode and owner, and is still
/// complete if the move fails. Errors as atomicSave.
void atomicMove(const std::string& from, const std::string& to);

} // namespace host
