#pragma once
// A source file in memory: its bytes, its code page, its physical lines, and the place where its code begins.
#include "Basic/code_page.h"
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace qltoolkit {

/// A byte offset into a source file. SourceText::locate turns it into line and column.
using Pos = std::uint32_t;

/// What a file is, told by its extension.
enum class FileKind : std::uint8_t { Unknown, Module, Class, Form, UserControl, PropertyPage, Designer, UserDocument };

/// Letter case does not matter; Unknown for every extension that holds no code.
[[nodiscard]] FileKind fileKindOf(std::string_view path);

/// Where something stands: physical line and column from 1; the column counts characters, not bytes.
struct Location {
    std::uint32_t line = 1;
    std::uint32_t column = 1;
    bool operator==(const Location&) const = default;
};

/// How the head of a file looks: the VERSION line, Object lines, the block of properties and the Attribute lines.
enum class HeaderState : std::uint8_t {
    Missing,  ///< there is no VERSION line (Attribute lines may stand at the top all the same)
    Complete, ///< a VERSION line and a balanced block, or a VERSION line alone
    Unclosed, ///< the block that begins at headerBlock() never ends
};

/// The largest file that positions can address.
inline constexpr std::size_t kMaxSourceBytes = std::size_t{1} << 30;

/// The bytes of one file. Everything that refers to it (tokens, trees, diagnostics) needs it to live on.
class SourceText {
public:
    /// `bytes` as they stand on disk, at most kMaxSourceBytes, and their code page. A file that begins with a byte
    /// order mark, or whose bytes above 127 are all UTF-8, is read as UTF-8 instead.
    SourceText(std::string name, std::string bytes, basic::CodePage = basic::CodePage::windows1252());
    SourceText(const SourceText&) = delete;
    SourceText& operator=(const SourceText&) = delete;

    [[nodiscard]] const std::string& name() const { return name_; }
    [[nodiscard]] FileKind kind() const { return kind_; }
    [[nodiscard]] const basic::CodePage& codePage() const { return page_; }

    [[nodiscard]] Pos size() const { return size_; }
    /// All bytes. At least kPadding NULs follow the last one, so that a reader may look ahead without a test.
    [[nodiscard]] const char* data() const { return bytes_.data(); }
    [[nodiscard]] std::string_view text(Pos begin, Pos end) const { return {data() + begin, end - begin}; }

    /// Physical lines: each ends at CRLF, LF or a lone CR; a rest without a line end counts.
    [[nodiscard]] std::uint32_t lineCount() const { return static_cast<std::uint32_t>(lineStarts_.size()) - 1; }
    /// The first byte of the physical line (from 1). lineStart(lineCount() + 1) is size().
    [[nodiscard]] Pos lineStart(std::uint32_t line) const { return lineStarts_[line - 1]; }
    /// The physical line without its end.
    [[nodiscard]] std::string_view line(std::uint32_t number) const;
    [[nodiscard]] std::uint32_t lineOf(Pos) const;
    [[nodiscard]] Location locate(Pos) const;

    [[nodiscard]] HeaderState header() const { return header_; }
    /// Line of the BEGIN that opens the block of properties; 0 without one.
    [[nodiscard]] std::uint32_t headerBlock() const { return headerBlock_; }
    /// Lines of the top run of Attribute lines: first, and one past the last. Equal when there are none.
    [[nodiscard]] std::uint32_t attributesBegin() const { return attributesBegin_; }
    /// Line 1 of the code window as a physical line; lineCount() + 1 in a file without code.
    [[nodiscard]] std::uint32_t codeBegin() const { return codeBegin_; }

    /// True when this cannot be VB source: UTF-16, or full of control characters.
    [[nodiscard]] bool isBinary() const { return binary_; }

    /// Bytes of this file as UTF-8.
    [[nodiscard]] std::string decode(std::string_view bytes) const;
    /// True when `byte` is the first of two bytes of one character in this file's code page.
    [[nodiscard]] bool isLeadByte(unsigned char byte) const;

    static constexpr std::size_t kPadding = 16;

private:
    void splitLines();
    void findCode();
    std::uint32_t skipBlock(std::uint32_t line);

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
