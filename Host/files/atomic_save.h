#pragma once
// Replacing a file all at once: whoever looks sees the old bytes or the new ones, after a crash too.
#include "Host/files/text_file.h"
#include <optional>
#include <string>
#include <string_view>

namespace host {

/// True when a save over this file must fail: no write bit in its mode, a read-only file system, or no access. The mode
/// counts for the superuser too. A file that is not there is not read-only.
bool isReadOnly(const std::string& path);

/// The stamp of what stands at `path` when another program wrote it since it was read as `asRead`: neither the bytes of
/// then nor `bytes`. Nothing when there is no such change, and where no file stands any more. Errors as readFile.
std::optional<FileStamp> changedSince(const std::string& path, const FileStamp& asRead, std::string_view bytes = {});

/// Replaces `path` by `bytes`, through a symbolic link to its target, keeping mode and owner. A file that holds these
/// bytes already is not touched. `asRead` is the stamp of what the caller read (none: there was no file, or the user
/// agreed to replace it). On failure the old file stands as it was and nothing is left beside it.
/// Errors: 75 read-only or a folder, or changed on disk since `asRead`; 76 the folder is not there; 61 the disk is full;
/// 57 the device failed.
FileStamp atomicSave(const std::string& path, std::string_view bytes, const std::optional<FileStamp>& asRead = {});

} // namespace host
