#pragma once
// A file as its lines: each keeps its own line end, so that what nobody touched goes back byte for byte.
#include <cstdint>
#include <string>
#include <string_view>
#include <sys/stat.h>
#include <vector>

namespace host {

enum class LineEnd : std::uint8_t { None, CrLf, Lf, Cr };

/// The bytes of a line end.
std::string_view bytesOf(LineEnd end) noexcept;

/// One line as it stands in the file, in the file's own bytes. Only the last line of a file can have no end.
struct TextLine {
    std::string text;
    LineEnd end = LineEnd::None;
};

/// Takes the next line off the front of `rest`; a lone CR ends a line like CRLF and LF. `rest` must not be empty.
std::string_view takeLine(std::string_view& rest, LineEnd& end) noexcept;

std::vector<TextLine> splitLines(std::string_view bytes);
std::string joinLines(const std::vector<TextLine>& lines);

/// The end that new lines of this text get: that of its first line, CRLF where it has none.
LineEnd ownLineEnd(std::string_view bytes) noexcept;

/// What the file system told of a file when its bytes were read, and a digest of these bytes: enough to notice
/// that somebody else wrote it since.
struct FileStamp {
    std::uint64_t device = 0, inode = 0, size = 0;
    std::int64_t modifiedSeconds = 0, modifiedNanoseconds = 0;
    std::uint64_t digest = 0;

    /// True when the file system shows no sign of a change: everything but the digest is equal.
    bool sameFileState(const FileStamp& other) const noexcept;
};

std::uint64_t digestOf(std::string_view bytes) noexcept;

/// The stamp of a file with this state and these bytes.
FileStamp stampOf(const struct ::stat& state, std::string_view bytes) noexcept;

struct FileContent {
    std::string bytes;
    FileStamp stamp;
};

/// The largest file that is read: 1 GiB. A project file or source beyond it is a mistake.
inline constexpr std::uint64_t kLargestFile = std::uint64_t{1} << 30;

/// Reads a whole file once. Errors: 53 it is not there, 76 its folder is not there, 75 it is a folder or not
/// readable or no regular file, 7 larger than kLargestFile, 57 the device failed.
FileContent readFile(const std::string& path);

/// The file's first bytes, at most `most` of them. Errors as above, whatever the file's size.
std::string readFileHead(const std::string& path, std::size_t most);

} // namespace host
