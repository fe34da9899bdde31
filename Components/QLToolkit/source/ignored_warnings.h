#pragma once
// Comments that ask for silence about one line: ' fernwick: ignore 2900, 2901
#include "Components/QLToolkit/source/diagnostic.h"

namespace qltoolkit {

/// The comments of one file. The comment at the end of a statement's last line counts for all of its lines.
class IgnoredWarnings {
public:
    explicit IgnoredWarnings(const SourceText& source);

    /// Removes the warnings that the comments name. Errors stay.
    void removeFrom(std::vector<Diagnostic>& diagnostics);

    /// What a comment lists and is no warning of the compiler.
    struct Mistake {
        Pos pos = 0;
        std::string text; ///< UTF-8; "" if nothing is listed
    };
    [[nodiscard]] const std::vector<Mistake>& mistakes() const { return mistakes_; }

    /// A warning that a comment lists.
    struct Listed {
        std::uint32_t firstLine = 0, lastLine = 0;
        Message message{};
        Pos pos = 0;
        bool isUsed = false; ///< something was removed
    };
    [[nodiscard]] const std::vector<Listed>& listed() const { return listed_; }

private:
    void readLine(std::uint32_t number);
    void readComment(Pos begin, Pos end);
    void readItem(Pos begin, Pos end);
    [[nodiscard]] std::uint32_t firstLineOf(std::uint32_t last) const;

    const SourceText& source_;
    std::vector<Listed> listed_; // by position
    std::vector<Mistake> mistakes_;
};

} // namespace qltoolkit
