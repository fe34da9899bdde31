#include "Apps/fernwick/doctor/findings.h"
#include "Apps/fernwick/options/exit_status.h"
#include "Apps/fernwick/output/json_output.h"
#include "Apps/fernwick/output/plural.h"
#include "Apps/fernwick/run/interruption.h"
#include "Apps/fernwick/verbs/verbs.h"
#include "Basic/printable.h"
#include <fmt/format.h>

namespace cli {

namespace {

using State = Finding::State;

struct Examination {
    const char* subject;
    void (*examine)(Machine&, Findings&);
};

constexpr Examination kExaminations[] = {
    {"installation", examineInstallation}, {"stores", examineStores}, {"compiler", examineCompiler},
    {"targets", examineTargets},           {"fonts", examineFonts},   {"devices", examineDevices},
};

/// A failing examination is a finding, too.
void examineGuarded(const Examination& one, Machine& machine, Findings& to) {
    const auto failed = [&](const std::string& reason) {
        to.push_back(troubleFinding(one.subject, "cannot be examined: " + reason, "Reinstall Fernwick."));
    };
    try {
        one.examine(machine, to);
    } catch (const Interrupted&) { throw; } catch (const basic::RuntimeError& error) {
        failed(error.Description);
    } catch (const std::exception& error) { failed(error.what()); }
}

std::string_view stateName(State state) {
    switch (state) {
    case State::Good: return "good";
    case State::Warning: return "warning";
    case State::Trouble: break;
    }
    return "trouble";
}

std::size_t countOf(const Findings& findings, State state) {
    return std::size_t(
        std::count_if(findings.begin(), findings.end(), [state](const Finding& one) { return one.state == state; }));
}

Json jsonOfFindings(const Findings& findings) {
    auto json = jsonResult("doctor");
    json["usable"] = countOf(findings, State::Trouble) == 0;
    json["findings"] = Json::array();
    for (const auto& one : findings) {
        Json finding{{"state", stateName(one.state)}, {"subject", one.subject}, {"detail", one.detail}};
        if (!one.fix.empty()) finding["cure"] = one.fix;
        json["findings"].push_back(finding);
    }
    return json;
}

std::string closingLine(const Findings& findings) {
    const auto troubles = countOf(findings, State::Trouble), warnings = countOf(findings, State::Warning);
    auto text = troubles == 0 ? std::string("Everything is usable") : fmt::format("{} not usable", troubles);
    if (warnings > 0) text += ", " + plural(warnings, "warning");
    return text + ".";
}

void printFindings(const Findings& findings, Verbosity verbosity, Console& console) {
    std::size_t width = 0;
    for (const auto& one : findings) width = std::max(width, one.subject.size());
    for (const auto& one : findings) {
        if (verbosity == Verbosity::Quiet && one.state == State::Good) continue;
        console.out(
            fmt::format("{:<7}  {:<{}}  {}\n", stateName(one.state), one.subject, width, basic::printable(one.detail)));
        if (!one.fix.empty()) console.out(fmt::format("{:<7}  {:<{}}  -> {}\n", "", "", width, one.fix));
    }
    if (verbosity != Verbosity::Quiet) console.out(closingLine(findings) + "\n");
}

} // namespace

int runDoctor(const Options& options, Console& console) {
    CommandLineUser user{console, options.answers, {}};
    Machine machine{console, user};
    Findings findings;
    for (const auto& one : kExaminations) {
        checkInterrupt();
        examineGuarded(one, machine, findings);
    }
    if (options.format == Format::Json)
        console.out(dumpJson(jsonOfFindings(findings)));
    else
        printFindings(findings, options.verbosity, console);
    return countOf(findings, State::Trouble) == 0 ? kGood : kMachineTrouble;
}

} // namespace cli
