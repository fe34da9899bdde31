#pragma once
// What standard error may be used for besides lines of text.
#include "Apps/fernwick/options/color_use.h"
#include <functional>
#include <string>

namespace cli {

struct Terminal {
    bool colour = false;
    bool progressBar = false;
    /// Whether a question reaches a user.
    bool questions = false;
};

/// The facts that this is decided from.
struct TerminalFacts {
    bool errIsTerminal = false;
    bool inIsTerminal = false;
    /// Returns "" for a variable that is not set.
    std::function<std::string(const char* name)> variable;
};

/// --color overrides NO_COLOR, which overrides CLICOLOR_FORCE. A terminal gets bars and colours unless it is a simple
/// one (TERM=dumb) or the log of a build server (CI), which also answers no questions.
Terminal terminalFor(ColorUse colour, const TerminalFacts& facts);

/// The facts of this process.
TerminalFacts terminalFacts();

} // namespace cli
