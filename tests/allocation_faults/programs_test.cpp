// Each allocation of a program fails once: the program gets error 7, which it can handle, or is not loaded.
#include "Components/Tamarik/functions/standard_natives.h"
#include "Components/Tamarik/machine/run_without_window.h"
#include "tests/allocation_faults/chosen_programs.h"
#include "tests/allocation_faults/failing_new.h"
#include "tests/language_programs/compiled_case.h"
#include <algorithm>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <map>
#include <memory>
#include <new>
#include <optional>
#include <string>

namespace allocation_faults {

namespace {

using language_programs::SourceFile;

constexpr std::int64_t kBudget = 20'000'000;
constexpr std::string_view kCaught = "caught 7\n";

/// The program as a procedure of another one, which handles its error and calls it again.
std::vector<SourceFile> handledFilesOf(const language_programs::Case& one) {
    auto files = language_programs::filesOf(one);
    for (auto& file : files)
        if (const auto at = file.text.find("Sub Main()"); at != std::string::npos)
            file.text.replace(at, 10, "Sub Program()");
    files.push_back(language_programs::moduleOf("Caller"));
    files.back().text += "Sub Main()\nOn Error GoTo Failed\nProgram\nExit Sub\n"
                         "Failed:\nDebug.Print \"caught\" & Str$(Err.Number)\nResume Again\n"
                         "Again:\nOn Error GoTo 0\nProgram\nEnd Sub\n";
    return files;
}

const tamarik::Natives& natives() {
    static const tamarik::Natives all = tamarik::standardNatives();
    return all;
}

/// What a run did; without a state, it was not loaded.
struct Outcome {
    std::optional<tamarik::RunState> state;
    std::string printed;
    int number = 0;
    bool hasFailed = false; ///< the allocation that was to
};

void runCode(const std::string& image, std::uint64_t failingBlock, Outcome& outcome) {
    auto code = std::make_shared<const image::CodeImage>(image::decode(image).code);
    if (image::verify(*code)) throw std::logic_error("not verified");
    tamarik::MachineOptions options;
    options.failingAllocation = failingBlock;
    options.output.print = options.output.error = [&](std::string_view text) {
        const NotCounted own;
        outcome.printed += text;
    };
    tamarik::Machine machine(std::make_shared<const tamarik::Program>(std::move(code)), natives(), std::move(options));
    machine.start();
    outcome.state = tamarik::RunState::Running;
    outcome.state = tamarik::runWithoutWindow(machine, kBudget);
    if (machine.error()) outcome.number = machine.error()->number;
}

/// Runs with a block of the heap that cannot be allocated, which the machine itself counts.
Outcome runWithoutBlock(const std::string& image, std::uint64_t n) {
    Outcome outcome;
    runCode(image, n, outcome);
    return outcome;
}

/// Runs with memory of the C++ library that cannot be allocated.
Outcome runWithoutNew(const std::string& image, std::uint64_t n) {
    Outcome outcome;
    const FailingNew failing(n);
    try {
        runCode(image, 0, outcome);
    } catch (const std::bad_alloc&) { EXPECT_FALSE(outcome.state) << "left a machine that was running"; }
    outcome.hasFailed = FailingNew::isOver();
    return outcome;
}

class Programs : public testing::TestWithParam<Chosen> {
protected:
    Programs() {
        static const auto cases = language_programs::readAllCases();
        const auto found =
            std::find_if(cases.begin(), cases.end(), [](const auto& one) { return one.title == GetParam().title; });
        if (found == cases.end()) throw std::runtime_error("no such program");
        handlesErrors_ = found->code.find("On Error") != std::string::npos;
        terminates_ = found->code.find("Terminate") != std::string::npos;
        image_ = language_programs::imageOf(*found, handledFilesOf(*found));
        good_ = runWithoutBlock(image_, 0);
    }

    /// The error is in the middle of what the program prints; afterwards it runs as if nothing had happened.
    void expectGood(const Outcome& outcome, std::uint64_t n) {
        if (!outcome.state) return;
        SCOPED_TRACE("allocation " + std::to_string(n));
        EXPECT_NE(*outcome.state, tamarik::RunState::Running);
        EXPECT_NE(*outcome.state, tamarik::RunState::StoppedByBudget);
        if (outcome.number == 0 && outcome.printed == good_.printed) return;
        const auto caught = outcome.printed.rfind(kCaught);
        if (caught == std::string::npos) {
            // A program with handlers of its own may do anything else.
            EXPECT_TRUE(outcome.number == 7 || handlesErrors_) << outcome.number << "\n" << outcome.printed;
            return;
        }
        ++caught_;
        if (handlesErrors_) return;
        // What an error releases may print.
        if (!terminates_) { EXPECT_THAT(good_.printed, testing::StartsWith(outcome.printed.substr(0, caught))); }
        if (!GetParam().runsAgain) return;
        EXPECT_EQ(outcome.number, 0);
        EXPECT_EQ(outcome.printed.substr(caught + kCaught.size()), good_.printed);
    }

    std::string image_;
    Outcome good_;
    bool handlesErrors_ = false, terminates_ = false;
    int caught_ = 0;
};

} // namespace

TEST_P(Programs, SurviveTheFailureOfEachBlock) {
    ASSERT_EQ(good_.number, 0);
    for (std::uint64_t n = 1;; ++n) {
        const auto outcome = runWithoutBlock(image_, n);
        if (outcome.printed == good_.printed && outcome.number == 0) break;
        expectGood(outcome, n);
    }
    EXPECT_GT(caught_, 0);
}

TEST_P(Programs, SurviveTheFailureOfEachNew) {
    ASSERT_EQ(good_.number, 0);
    int loading = 0;
    for (std::uint64_t n = 1;; ++n) {
        const auto outcome = runWithoutNew(image_, n);
        if (!outcome.hasFailed) break;
        loading += outcome.state ? 0 : 1;
        expectGood(outcome, n);
    }
    EXPECT_GT(loading, 20);
}

INSTANTIATE_TEST_SUITE_P(Chosen, Programs, testing::ValuesIn(kChosen), [](const auto& info) {
    std::string name(info.param.title);
    std::replace_if(
        name.begin(), name.end(), [](char c) { return !std::isalnum(static_cast<unsigned char>(c)); }, '_');
    return name;
});

} // namespace allocation_faults
