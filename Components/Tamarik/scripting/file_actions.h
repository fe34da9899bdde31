#pragma once
// Copies, moves and deletes files and folders, as the library Scripting does. Paths are those of the store, unless they are texts.
#include "Components/Tamarik/natives/session.h"
#include <string>
#include <string_view>
#include <vector>

namespace tamarik {

// Whether the store has it.
[[nodiscard]] bool isFile(const Session& session, const std::string& path);
[[nodiscard]] bool isFolder(const Session& session, const std::string& path);

/// The files that a text with "*" and "?" in its last name fits. Error 53, or 76 if their folder is missing.
[[nodiscard]] std::vector<std::string> filesAt(Session& session, std::u16string_view path);
/// The same for folders. Error 76.
[[nodiscard]] std::vector<std::string> foldersAt(Session& session, std::u16string_view path);
/// Where to copy or move `source`: into the folder that the text names if it ends with a separator or there are several
/// sources, otherwise to the path itself. Errors 5, 52, 76.
[[nodiscard]] std::string targetOf(const Session& session, std::u16string_view text, const std::string& source,
                                   bool isOneOfSeveral);

/// The path of a name in a folder, as the store has it if it exists. Errors 5, 52.
[[nodiscard]] std::string pathOfName(const Session& session, const std::string& folder, std::u16string_view name);

// Errors 58 for a target that must not be replaced, 70 for what is open or read-only, 76.
void copyFile(Session& session, const std::string& source, const std::string& target, bool replaces);
void copyFolder(Session& session, const std::string& source, const std::string& target, bool replaces);
/// Moves a file or folder.
void move(Session& session, const std::string& source, const std::string& target);
/// `force` deletes what is read-only.
void deleteFile(Session& session, const std::string& path, bool force);
void deleteFolder(Session& session, const std::string& path, bool force);
void createFolder(Session& session, const std::string& path);

} // namespace tamarik
