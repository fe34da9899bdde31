#pragma once
// Finds the code page in which a project was written.
#include "Basic/code_page.h"
#include "Basic/double_byte.h"
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace basic {

/// Returns UTF-8 for a file that starts with a byte order mark or whose characters above 127 are all well-formed UTF-8,
/// otherwise `usual`, the page of its project.
CodePage codePageOfFile(std::string_view bytes, const CodePage& usual);

enum class CodePageReason {
    Default,   ///< nothing points to another page
    Given,     ///< the user's choice for this run
    Key,       ///< the project file says so
    Utf8,      ///< all files with characters above 127 are UTF-8
    Charset,   ///< the fonts of the forms have this character set
    FileNames, ///< in this page the files that the project names are on disk
    Text       ///< the text of the files
};

/// The page of a project's files, those excepted that are UTF-8 themselves.
struct DetectedCodePage {
    CodePage page = CodePage::windows1252();
    CodePageReason reason = CodePageReason::Default;
    /// False if all files are ASCII or UTF-8, so that the page matters only for new text.
    bool matters = false;
};

/// Collects what the files of a project show about their code page, in linear time. The first that applies decides: the
/// key, UTF-8 in all files, the Charset of forms, names on disk, and text that only a double-byte page explains.
class CodePageEvidence {
public:
    /// Adds a project file or a source file.
    void addFile(std::string_view bytes);
    /// Adds the number in the project file; a page that doesn't exist is ignored.
    void key(int page);
    /// Adds a file whose name exists on disk if it is read in this page.
    void addNameOnDisk(int page) { ++namesOnDisk_[page]; }

    DetectedCodePage detect() const;

private:
    void addCharsets(std::string_view bytes);
    void addRuns(std::string_view bytes);
    void addNames(std::string_view bytes);
    std::optional<int> pageOfCharsets() const;
    std::optional<int> pageOfText() const;
    bool decodes(int page) const;
    bool explains(int page) const;

    std::optional<int> key_;
    bool utf8_ = false;      ///< a file is surely UTF-8
    bool shortUtf8_ = false; ///< a file has only sequences that a double-byte page might have, too
    bool legacy_ = false;    ///< a file is neither ASCII nor UTF-8
    std::map<int, std::size_t> charsets_, namesOnDisk_; ///< by page
    std::size_t highBytes_ = 0, highBytesInRuns_ = 0;   ///< a run has at least two
    std::string names_; ///< parts of code outside strings and comments that begin with a byte above 127, one a line
    std::array<DoubleByteCount, 4> counts_{DoubleByteCount{kDoubleBytePages[0]}, DoubleByteCount{kDoubleBytePages[1]},
                                           DoubleByteCount{kDoubleBytePages[2]}, DoubleByteCount{kDoubleBytePages[3]}};
};

} // namespace basic
