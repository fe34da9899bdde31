#pragma once
// A file as its lines. Each keeps its own line end, so unedited lines are written back byte for byte.
#include <cstdint>
#include <string>
#include <string_view>
#include <sys/stat.h>
#include <unordered_map>
#include <vector>

namespace host {

enum class LineEnd : std::uint8_t { None, CrLf, Lf, Cr };

/// The bytes of a line end.
std::string_view bytesOf(LineEnd end) noexcept;

/// One line in the file's encoding. Only the last line of a file can have no end.
struct TextLine {
    std::string text;
    LineEnd end = LineEnd::None;
};

/// Removes the first line from `rest` and returns it without its end. A lone CR ends a line like CRLF and LF. `rest`
/// must not be empty.
std::string_view takeLine(std::string_view& rest, LineEnd& end) noexcept;

std::vector<TextLine> splitLines(std::string_view bytes);
std::string joinLines(const std::vector<TextLine>& lines);

/// The line end for new lines of this text: that of its first line, or CRLF if it has none.
LineEnd ownLineEnd(std::string_view bytes) noexcept;

/// The state of a file when its bytes were read, and a digest of these bytes: enough to detect a later change by
/// another program.
struct FileStamp {
    std::uint64_t device = 0, inode = 0, size = 0;
    std::int64_t modifiedSeconds = 0, modifiedNanoseconds = 0;
    std::uint64_t digest = 0;

    /// True if everything but the digest is equal.
    bool sameFileState(const FileStamp& other) const noexcept;
};

std::uint64_t digestOf(std::string_view bytes) noexcept;

FileStamp stampOf(const struct ::stat& state, std::string_view bytes) noexcept;

struct FileContent {
    std::string bytes;
    FileStamp stamp;
};

/// The largest file that is read: 1 GiB. No project file or source is larger.
inline constexpr std::uint64_t kLargestFile = std::uint64_t{1} << 30;

/// Reads a whole file once. Errors: 53 it does not exist, 76 its folder does not exist, 75 it is a folder, not readable
/// or not a regular file, 7 larger than kLargestFile, 57 the device failed.
FileContent readFile(const std::string& path);

/// Files that several readers need: each is read when it is first needed, and kept.
class FileContents {
public:
    /// Errors as readFile; what failed is tried again.
    const FileContent& read(const std::string& path);
    /// Returns the content and forgets it. Errors as read.
    FileContent take(const std::string& path);

private:
    std::unordered_map<std::string, FileContent> files_;
};

/// Reads at most `most` bytes of a file of any size from a position on; none beyond its end. Errors as readFile, except
/// 7.
std::string readFilePart(const std::string& path, std::uint64_t at, std::size_t most);

} // namespace host
