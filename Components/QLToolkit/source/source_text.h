#pragma once
// A source file in memory: its bytes, code page and physical lines, and where its code begins.
#include "Basic/code_page.h"
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace qltoolkit {

/// A byte offset into a source file. SourceText::locate turns it into line and column.
using Pos = std::uint32_t;

/// Kind of file, by its extension.
enum class FileKind : std::uint8_t { Unknown, Module, Class, Form, UserControl, PropertyPage, Designer, UserDocument };

/// Ignores case. Returns Unknown for the extension of a file that is not source code.
[[nodiscard]] FileKind fileKindOf(std::string_view path);

/// Physical line and column, both from 1. The column counts characters, not bytes.
struct Location {
    std::uint32_t line = 1;
    std::uint32_t column = 1;
    bool operator==(const Location&) const = default;
};

/// State of the header: the VERSION line, Object lines, the property block and the Attribute lines.
enum class HeaderState : std::uint8_t {
    Missing,  ///< no VERSION line (Attribute lines are still possible)
    Complete, ///< a VERSION line and a balanced block, or a VERSION line alone
    Unclosed, ///< the block that begins at headerBlock() has no end
    TooDeep,  ///< the block that begins at headerBlock() is inside kDeepestHeaderBlock others
};

/// The number of blocks that can be nested in a header. Images can hold no deeper controls.
inline constexpr std::size_t kDeepestHeaderBlock = 200;

/// The largest file that positions can address.
inline constexpr std::size_t kMaxSourceBytes = std::size_t{1} << 30;

/// The bytes of one file. It must outlive everything that refers to it, such as tokens and trees.
class SourceText {
public:
    /// Takes the bytes of the file, at most kMaxSourceBytes, and the code page of its project. A file that is UTF-8
    /// itself is read as that; see basic::codePageOfFile.
    SourceText(std::string name, std::string bytes, basic::CodePage = basic::CodePage::windows1252());
    SourceText(const SourceText&) = delete;
    SourceText& operator=(const SourceText&) = delete;

    [[nodiscard]] const std::string& name() const { return name_; }
    [[nodiscard]] FileKind kind() const { return kind_; }
    [[nodiscard]] const basic::CodePage& codePage() const { return page_; }

    [[nodiscard]] Pos size() const { return size_; }
    /// Returns all bytes, followed by at least kPadding NULs so that readers can look ahead without a check.
    [[nodiscard]] const char* data() const { return bytes_.data(); }
    [[nodiscard]] std::string_view text(Pos begin, Pos end) const { return {data() + begin, end - begin}; }

    /// Number of physical lines. Lines end with CRLF, LF or a lone CR; an unterminated last line counts.
    [[nodiscard]] std::uint32_t lineCount() const { return static_cast<std::uint32_t>(lineStarts_.size()) - 1; }
    /// First byte of a physical line (from 1). lineStart(lineCount() + 1) is size().
    [[nodiscard]] Pos lineStart(std::uint32_t line) const { return lineStarts_[line - 1]; }
    /// A physical line without its line end.
    [[nodiscard]] std::string_view line(std::uint32_t number) const;
    [[nodiscard]] std::uint32_t lineOf(Pos) const;
    [[nodiscard]] Location locate(Pos) const;

    [[nodiscard]] HeaderState header() const { return header_; }
    /// Line of the BEGIN of the property block, or of the one that is too deep; 0 if there is none.
    [[nodiscard]] std::uint32_t headerBlock() const { return headerBlock_; }
    /// Lines of the Attribute lines at the top: the first, and one past the last. Equal if there are none.
    [[nodiscard]] std::uint32_t attributesBegin() const { return attributesBegin_; }
    /// Physical line of line 1 of the code window; lineCount() + 1 in a file without code.
    [[nodiscard]] std::uint32_t codeBegin() const { return codeBegin_; }

    /// Returns true if the file cannot be VB source: UTF-16, or text with many control characters.
    [[nodiscard]] bool isBinary() const { return binary_; }

    /// Returns bytes of this file as UTF-8.
    [[nodiscard]] std::string decode(std::string_view bytes) const;
    /// Returns true if `byte` begins a two-byte character in this file's code page.
    [[nodiscard]] bool isLeadByte(unsigned char byte) const;

    static constexpr std::size_t kPadding = 32;

private:
    bool splitLines();
    void findCode();
    std::uint32_t skipBlock(std::uint32_t line);
    std::uint32_t headerTooDeep(std::uint32_t line);

    std::string name_;
    std::string bytes_;
    Pos size_;
    std::vector<Pos> lineStarts_;
    FileKind kind_;
    HeaderState header_ = HeaderState::Missing;
    bool binary_ = false;
    basic::CodePage page_;
    std::uint32_t headerBlock_ = 0;
    std::uint32_t attributesBegin_ = 1;
    std::uint32_t codeBegin_ = 1;
};

} // namespace qltoolkit
