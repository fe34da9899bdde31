#pragma once
#include <map>
#include <string>
#include <vector>

namespace cli {

/// Finds where the words end that messages are about. Reads each file once.
class TokenEnds {
public:
    /// Returns the column after the word, number or sign at this position, all from 1 and in characters; 0 if the file
    /// has no such position.
    int endColumn(const std::string& path, int line, int column);

private:
    using Lines = std::vector<std::u32string>;
    const Lines& linesOf(const std::string& path);

    std::map<std::string, Lines> files_;
};

} // namespace cli
