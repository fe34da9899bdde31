#pragma once
#include "Basic/code_page.h"
#include <string>
#include <string_view>
#include <vector>

namespace cli {

/// Finds where the words of a source end that messages are about.
class TokenEnds {
public:
    /// `page` is that of the project; a source that is UTF-8 is read as that.
    TokenEnds(std::string_view bytes, const basic::CodePage& page);

    /// Returns the column after the word, number or sign at this position, all from 1 and in characters; 0 if the source
    /// has no such position.
    int endColumn(int line, int column) const;

private:
    std::vector<std::u32string> lines_;
};

} // namespace cli
