#include "Apps/common/process_memory.h"
#include "Apps/fernwick/command_line/parse.h"
#include "Apps/fernwick/options/exit_status.h"
#include "Apps/fernwick/options/refusal.h"
#include "Apps/fernwick/output/report.h"
#include "Apps/fernwick/output/version_line.h"
#include "Apps/fernwick/run/interruption.h"
#include "Basic/printable.h"
#include "Basic/runtime_error.h"
#include <cstdio>
#include <cstring>
#include <fmt/format.h>

namespace {

/// Prints why the command failed, also as JSON or SARIF if requested. A second document would make the first one
/// unreadable.
int failed(int status, const std::string& reason, const cli::Options& options, cli::Console& console) {
    console.err("fernwick: " + reason, cli::Tone::Error);
    cli::Report report;
    report.verb = options.verb;
    report.project = options.project;
    report.exitStatus = status;
    report.failure = reason;
    if (!console.hasData()) cli::printDocument(report, options, console);
    return status;
}

/// Gives a command that has no data, because it only changes something, a document too.
int withDocument(int status, const cli::Options& options, cli::Console& console) {
    if (console.hasData()) return status;
    cli::Report report;
    report.verb = options.verb;
    report.project = options.project;
    report.exitStatus = status;
    cli::printDocument(report, options, console);
    return status;
}

int misused(const cli::Parsed& parsed, cli::Console& console) {
    const int status = failed(cli::kWrongUse, parsed.error, parsed.options, console);
    console.err(parsed.hint);
    return status;
}

int guarded(const cli::Parsed& parsed, cli::Console& console) {
    const auto& options = parsed.options;
    try {
        cli::checkInterrupt();
        const int status = basic::withinMemory([&] { return parsed.run(options, console); });
        return withDocument(status, options, console);
    } catch (const cli::Interrupted&) {
        return failed(cli::kInterrupted, "interrupted; no file was left incomplete", options, console);
    } catch (const cli::Refusal& refusal) {
        return failed(refusal.status(), refusal.what(), options, console);
    } catch (const basic::RuntimeError& error) {
        const auto reason = fmt::format("{} (error {} of {})", error.Description, error.Number, error.Source);
        return failed(cli::kMachineTrouble, reason, options, console);
    } catch (const std::exception& error) { return failed(cli::kMachineTrouble, error.what(), options, console); }
}

/// Prints to standard output and returns the exit status.
int printed(const std::string& text) {
    std::fputs(text.c_str(), stdout);
    std::fflush(stdout);
    const bool good = std::ferror(stdout) == 0;
    if (!good) std::fputs("fernwick: standard output could not be written\n", stderr);
    return good ? cli::kGood : cli::kMachineTrouble;
}

} // namespace

int main(int argc, char** argv) {
    // fast path for scripts that look for the program
    if (argc == 2 && std::strcmp(argv[1], "--version") == 0) return printed(cli::versionLine() + "\n");

    const auto parsed = cli::parseCommandLine(argc, argv);
    if (!parsed.output.empty()) return printed(parsed.output);

    apps::keepFreedMemory();
    cli::watchForInterrupt();
    cli::Console console{parsed.options.verbosity, parsed.options.color};
    int status = parsed.run ? guarded(parsed, console) : misused(parsed, console);
    if (cli::wasInterrupted()) status = cli::kInterrupted;
    if (!console.flush()) {
        console.err("fernwick: standard output could not be written", cli::Tone::Error);
        if (status == cli::kGood) status = cli::kMachineTrouble;
    }
    console.detail(fmt::format("{}: exit status {}", parsed.options.verb, status));
    return status;
}
