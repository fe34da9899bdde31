#pragma once
// Command lines as Windows programs read them.
#include <string>
#include <string_view>
#include <vector>

namespace host {

/// A way to divide a command line into the program's name and the rest.
struct ProgramReading {
    std::string name;
    std::string_view arguments;
};

/// A name in quotation marks has one reading. One without ends at a blank, and as it may itself hold blanks there is a
/// reading for each of them, the shortest first; names longer than a path can be are left out. Backslashes mean
/// nothing in a name. None for a line of blanks.
std::vector<ProgramReading> programReadings(std::string_view line);

/// The arguments of a command line without its program. 2n backslashes before a quotation mark are n backslashes, an
/// odd one makes the mark a character, and two marks within quotation are one character.
std::vector<std::string> splitArguments(std::string_view line);

} // namespace host
