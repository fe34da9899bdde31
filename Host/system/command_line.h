#pragma once
// Command lines as Windows programs parse them.
#include <string>
#include <string_view>
#include <vector>

namespace host {

/// A possible division of a command line into the program's name and the rest.
struct ProgramReading {
    std::string name;
    std::string_view arguments;
};

/// Returns the readings of a command line. A quoted name has one reading. An unquoted name ends at any of the blanks,
/// since it may contain blanks itself: shortest first, without names longer than a path can be. Backslashes have no
/// special meaning in a name. A blank line has no reading.
std::vector<ProgramReading> programReadings(std::string_view line);

/// Splits the arguments of a command line without its program. 2n backslashes before a quotation mark are n
/// backslashes, a further one makes the mark a character, and two marks within quotes are one character.
std::vector<std::string> splitArguments(std::string_view line);

} // namespace host
