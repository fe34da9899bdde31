#pragma once
// The text of a source file (.bas, .cls, .frm and so on): a header that the code window does not show, and the code,
// whose "Attribute" lines it neither shows nor counts.
#include "Basic/code_page.h"
#include "Host/files/text_file.h"
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace host {

/// A source file divided after its header: VERSION line, Object lines, one balanced Begin block, then the run of lines
/// that start with "Attribute ". A file without these has an empty header. The parts are views into the bytes.
struct SourceParts {
    std::string_view designer;   ///< VERSION, Object lines and the Begin block
    std::string_view attributes; ///< the run of Attribute lines
    std::string_view code;       ///< line 1 of the code window and everything after it
    bool balanced = true;        ///< false: the file ends inside the Begin block
};
SourceParts splitSource(std::string_view bytes);

/// Returns the value of an attribute in a run of Attribute lines, without its quotes; nothing if there is none.
std::optional<std::string_view> attributeValue(std::string_view attributes, std::string_view name);

/// The lines of a module's code. Line numbers start at 1 and are those of the code window.
class CodeText {
public:
    /// `ownEnd` is the line end of new lines.
    CodeText(std::string_view code, basic::CodePage codePage, LineEnd ownEnd);

    std::size_t count() const { return shown().size(); }

    /// Returns one line without its end. `line` is in 1..count().
    std::string line(std::size_t line) const;

    /// Returns the line of this text, hidden lines included, that is shown as `line`. Continues beyond the last line.
    std::size_t physicalLine(std::size_t line) const;
    /// The inverse of physicalLine; a hidden line has the number of the shown line above it.
    std::size_t windowLine(std::size_t physical) const;

    /// Inserts the lines of `text` before `line` (1..count()+1). Error 5, without a change, if the code page lacks a
    /// character.
    void insert(std::size_t line, std::string_view text);
    /// Removes lines and the hidden attributes that follow them.
    void remove(std::size_t line, std::size_t count);
    /// Replaces one line with the lines of `text`. Error as for insert.
    void replace(std::size_t line, std::string_view text);
    /// Makes the hidden attributes after the statement that begins in a line those of a member with this name.
    void nameAttributes(std::size_t line, std::string_view member);

    std::string bytes() const { return joinLines(lines_); }

private:
    const std::vector<std::uint32_t>& shown() const;
    std::vector<TextLine> encoded(std::string_view text) const;

    basic::CodePage codePage_;
    LineEnd ownEnd_;
    std::vector<TextLine> lines_;
    mutable std::vector<std::uint32_t> shown_;
    mutable bool counted_ = false;
};

} // namespace host
