#pragma once
// A word in the code of a source, whatever it means.
#include "Components/QLToolkit/source/source_text.h"

namespace qltoolkit {

struct CodeWord {
    Pos begin = 0, end = 0;
    bool isMember = false;      ///< after a point or an exclamation mark
    bool namesArgument = false; ///< before :=
};

/// Returns where a name occurs outside of comments, strings and directives, parts that are not compiled included.
/// Ignores case.
[[nodiscard]] std::vector<CodeWord> wordsLike(const SourceText& source, std::string_view name);

} // namespace qltoolkit
