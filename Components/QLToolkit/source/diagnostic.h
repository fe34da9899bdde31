#pragma once
// What the compiler has to say about a file, in words that a VB developer understands.
#include "Components/QLToolkit/source/messages.h"
#include "Components/QLToolkit/source/source_text.h"
#include <string>
#include <string_view>
#include <vector>

namespace qltoolkit {

/// One message about one place of a file.
struct Diagnostic {
    Severity severity = Severity::Error;
    int number = 0; ///< stable, 1000 to 2998; the catalogue of messages explains it
    std::string file;
    std::uint32_t line = 0;   ///< physical line from 1; 0 when the message is about the file as a whole
    std::uint32_t column = 0; ///< in characters from 1; 0 as above
    std::string text;         ///< UTF-8
    bool operator==(const Diagnostic&) const = default;
};

/// Thrown through the parser when a file has more errors than anybody reads. Never leaves the compiler.
struct TooManyErrors {};

/// The messages about one file, in the order in which they were found.
class Diagnostics {
public:
    explicit Diagnostics(const SourceText& source) : source_(source) {}

    /// A message about the place `at`; `detail` (UTF-8) takes the place of "%1" in its text.
    void report(Message, Pos at, std::string_view detail = {});
    /// A message about the file as a whole.
    void reportFile(Message, std::string_view detail = {});

    [[nodiscard]] std::size_t errors() const { return errors_; }
    [[nodiscard]] const std::vector<Diagnostic>& all() const { return all_; }
    /// All messages, sorted by place.
    [[nodiscard]] std::vector<Diagnostic> takeSorted();

    /// More errors than this in one file end its compile.
    static constexpr std::size_t kMaxErrors = 500;

private:
    void add(Message, Location, std::string_view detail);

    const SourceText& source_;
    std::vector<Diagnostic> all_;
    std::size_t errors_ = 0;
};

/// The diagnostic for a message that belongs to no source text: a file that cannot be read.
[[nodiscard]] Diagnostic fileDiagnostic(Message, std::string file, std::string_view detail = {});

} // namespace qltoolkit
