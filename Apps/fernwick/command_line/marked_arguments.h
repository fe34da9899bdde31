#pragma once
// Arguments that the parser would not take as they are: after `--` it takes those that begin with a dash for options of the
// program when the command has all the arguments that it needs, and it splits "[a,b]" at the comma. It receives them with a
// mark.
#include <string>
#include <vector>

namespace cli {

/// Returns the program's arguments without the first `--`, with marks where they are needed.
std::vector<std::string> withMarks(int argc, const char* const* argv);

/// Removes the marks from an argument or from a text that quotes arguments.
void removeMarks(std::string& text);

} // namespace cli
