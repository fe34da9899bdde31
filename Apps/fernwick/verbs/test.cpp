#include "Apps/fernwick/options/exit_status.h"
#include "Apps/fernwick/options/refusal.h"
#include "Apps/fernwick/output/json_output.h"
#include "Apps/fernwick/output/plural.h"
#include "Apps/fernwick/programs/program_run.h"
#include "Apps/fernwick/programs/test_results.h"
#include "Apps/fernwick/verbs/verbs.h"
#include "Basic/case_folding.h"
#include "Host/files/atomic_save.h"
#include <algorithm>
#include <chrono>
#include <fmt/format.h>

namespace cli {

namespace {

bool beginsWithTest(std::string_view name) { return basic::equalNoCase(name.substr(0, 4), "Test"); }

std::vector<qltoolkit::EntryPoint> testsOf(const ProjectProgram& program, std::string_view filter) {
    auto tests = program.entries;
    std::erase_if(tests, [&](const auto& entry) {
        return !beginsWithTest(entry.module) || !beginsWithTest(entry.name) ||
               (entry.module + "." + entry.name).find(filter) == std::string::npos;
    });
    return tests;
}

/// Each test has a machine with fresh module data.
TestResult runTest(const qltoolkit::EntryPoint& test, const ProjectProgram& program, const Options& options) {
    const auto begin = std::chrono::steady_clock::now();
    TestResult result{test.module, test.name, {}, {}, false, 0};
    tamarik::MachineOptions settings;
    if (options.seed) settings.seed = *options.seed;
    settings.output.print = settings.output.error = [&](std::string_view text) { result.printed += text; };
    const auto machine = machineFor(program.program, std::move(settings));
    machine->start(test.number);
    const auto state = runProgram(*machine, {options.budget}, [] { return true; });
    result.error = machine->error();
    result.isStopped = !result.error && state != tamarik::RunState::Finished;
    result.seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
    return result;
}

std::vector<TestResult> runTests(const ProjectProgram& program, const Options& options, Console& console) {
    std::vector<TestResult> results;
    for (const auto& test : testsOf(program, options.filter)) {
        results.push_back(runTest(test, program, options));
        const bool isShown = options.verbosity != Verbosity::Quiet || !results.back().isGood();
        if (options.format == Format::Text && isShown) console.out(textOf(results.back(), program));
    }
    if (results.empty())
        throw Refusal(kProjectErrors, options.filter.empty()
                                          ? "The project has no public Test... procedure in a Test... module."
                                          : "No test has " + options.filter + " in its name.");
    return results;
}

} // namespace

int runTest(const Options& options, Console& console) {
    Report report;
    const auto program = compileProgram(options, StartObject::None, console, report);
    if (!program.program) {
        printDocument(report, options, console);
        return report.exitStatus;
    }
    const auto results = runTests(program, options, console);
    const auto failures = std::count_if(results.begin(), results.end(), [](const auto& one) { return !one.isGood(); });
    const int status = failures == 0 ? kGood : kProjectErrors;
    if (!options.junitFile.empty()) host::atomicSave(options.junitFile, junitOf(results, program));
    if (options.format == Format::Json) {
        auto json = jsonResult(options.verb);
        json["exitStatus"] = status;
        json["tests"] = jsonOf(results, program);
        json["failures"] = failures;
        console.out(dumpJson(json));
    } else if (options.verbosity != Verbosity::Quiet) {
        console.out(fmt::format("{}, {} failed\n", plural(results.size(), "test"), failures));
    }
    return status;
}

} // namespace cli
