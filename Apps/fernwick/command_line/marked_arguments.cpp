#include "Apps/fernwick/command_line/marked_arguments.h"
#include <algorithm>

namespace cli {

namespace {

// a control character, which begins no sensible argument
constexpr char kMark = '\x1F';

bool isDashed(const std::string& argument) { return argument.size() > 1 && argument.front() == '-'; }

bool isBracketed(const std::string& argument) { return argument.starts_with('[') && argument.ends_with(']'); }

} // namespace

std::vector<std::string> withMarks(int argc, const char* const* argv) {
    std::vector<std::string> arguments;
    bool areOperands = false;
    for (int i = 1; i < argc; ++i) {
        const std::string argument = argv[i];
        const bool isMarked = isBracketed(argument) || (areOperands && isDashed(argument));
        if (argument == "--" && !areOperands)
            areOperands = true;
        else
            arguments.push_back(isMarked ? kMark + argument : argument);
    }
    return arguments;
}

void removeMarks(std::string& text) { std::erase(text, kMark); }

} // namespace cli
