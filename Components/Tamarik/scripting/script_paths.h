#pragma once
// Paths as texts, which need not lead to a file. Both separators count.
#include <string>
#include <string_view>

namespace tamarik {

/// Joins with one separator; none after a drive or an empty path.
[[nodiscard]] std::u16string buildPath(std::u16string_view path, std::u16string_view name);
/// The last name; "" of a drive.
[[nodiscard]] std::u16string_view fileNameIn(std::u16string_view path);
/// The last name without its extension.
[[nodiscard]] std::u16string_view baseNameIn(std::u16string_view path);
/// What follows the last point of the last name.
[[nodiscard]] std::u16string_view extensionIn(std::u16string_view path);
/// The path without its last name; "" of a drive and of a single name.
[[nodiscard]] std::u16string_view parentFolderIn(std::u16string_view path);
/// "C:", or "\\server\share", or "".
[[nodiscard]] std::u16string_view driveIn(std::u16string_view path);
[[nodiscard]] bool endsWithSeparator(std::u16string_view path);

/// A path of the store as programs see it: "C:\a\b".
[[nodiscard]] std::string shownPath(std::string_view stored, std::string_view drive = "C:");

} // namespace tamarik
