#include "Apps/fernwick/output/terminal.h"
#include <cstdlib>
#include <unistd.h>

namespace cli {

namespace {

/// Variables that are switched off by 0 or false rather than by being unset.
bool isOn(const std::string& value) { return !value.empty() && value != "0" && value != "false"; }

bool usesColour(ColorUse wanted, bool isCapable, const TerminalFacts& facts) {
    if (wanted != ColorUse::Auto) return wanted == ColorUse::Always;
    if (!facts.variable("NO_COLOR").empty()) return false;
    return isCapable || isOn(facts.variable("CLICOLOR_FORCE"));
}

} // namespace

Terminal terminalFor(ColorUse colour, const TerminalFacts& facts) {
    const bool isBuildServer = isOn(facts.variable("CI"));
    const bool isCapable = facts.errIsTerminal && !isBuildServer && facts.variable("TERM") != "dumb";
    Terminal terminal;
    terminal.colour = usesColour(colour, isCapable, facts);
    terminal.progressBar = isCapable;
    terminal.questions = facts.errIsTerminal && facts.inIsTerminal && !isBuildServer;
    return terminal;
}

TerminalFacts terminalFacts() {
    return {isatty(STDERR_FILENO) == 1, isatty(STDIN_FILENO) == 1, [](const char* name) {
                const char* value = std::getenv(name);
                return std::string(value ? value : "");
            }};
}

} // namespace cli
