#pragma once
// The errors and warnings about one source file.
#include "Components/QLToolkit/source/messages.h"
#include "Components/QLToolkit/source/source_text.h"
#include <string>
#include <string_view>
#include <vector>

namespace qltoolkit {

/// What a warning about something that devices lack is about.
enum class Lack : std::uint8_t { None, Control, Class, Declare, Function, Member, Printing };

/// A message about a position in a file.
struct Diagnostic {
    Severity severity = Severity::Error;
    int number = 0; ///< stable, 1000 to 2998; see messages.h
    std::string file;
    std::uint32_t line = 0;   ///< physical line from 1; 0 if the message is about the whole file
    std::uint32_t column = 0; ///< in characters from 1; 0 as above
    std::string text;         ///< UTF-8
    Lack lack = Lack::None;
    std::string lacking; ///< its name in the program
    std::string instead; ///< what to use instead of what devices lack, or why there is nothing
    bool operator==(const Diagnostic&) const = default;
};

/// Thrown through the parser when a file has too many errors. Never leaves the compiler.
struct TooManyErrors {};

/// Collects the messages about one file in the order in which they are found.
class Diagnostics {
public:
    explicit Diagnostics(const SourceText& source) : source_(source) {}

    /// Adds a message about the position `at`. `detail` (UTF-8) replaces the placeholder in its text.
    /// Throws TooManyErrors after kMaxErrors errors, and adds nothing more.
    void report(Message, Pos at, std::string_view detail = {});
    /// Warns of something that devices lack.
    void reportLack(Lack, Pos at, std::string_view name, std::string_view instead);
    /// Adds a message about the whole file.
    void reportFile(Message, std::string_view detail = {});

    [[nodiscard]] std::size_t errors() const { return errors_; }
    [[nodiscard]] const std::vector<Diagnostic>& all() const { return all_; }
    /// Returns all messages but warnings that the file's comments ignore, sorted by position.
    [[nodiscard]] std::vector<Diagnostic> takeSorted();

    /// A file with this many errors is not read any further.
    static constexpr std::size_t kMaxErrors = 500;

private:
    void add(Message, Location, std::string_view detail);

    const SourceText& source_;
    std::vector<Diagnostic> all_;
    std::size_t errors_ = 0;
};

/// Returns a diagnostic for a file without a source text, such as one that cannot be read.
[[nodiscard]] Diagnostic fileDiagnostic(Message, std::string file, std::string_view detail = {});

} // namespace qltoolkit
