// Programs wait for their host without keeping it: run returns, and continues when the question is answered.
#include "Components/QLToolkit/check.h"
#include "Components/Tamarik/functions/standard_natives.h"
#include "Components/Tamarik/machine/run_without_window.h"
#include <gtest/gtest.h>
#include <memory>

namespace language_programs {

namespace {

using tamarik::Machine;
using tamarik::RunState;
using tamarik::Wait;

constexpr const char* kSleep = "Declare Sub Sleep Lib \"kernel32\" (ByVal time As Long)\n";

class Waits : public testing::TestWithParam<bool> {
protected:
    /// A machine for the statements of a Sub Main.
    Machine& machineFor(const std::string& statements, const std::string& declarations = {}) {
        const qltoolkit::SourceText source{"Module1.bas", declarations + "Sub Main()\n" + statements + "\nEnd Sub\n"};
        auto made = qltoolkit::compileProject({&source}, {}, {}, {"Main", 1252});
        tamarik::MachineOptions options;
        options.usesSwitch = GetParam();
        options.output.print = [this](std::string_view text) { printed_ += text; };
        options.output.error = [this](std::string_view text) { shown_ += text; };
        options.output.inputLine = [this](std::string& line) {
            if (lines_.empty()) return false;
            line = lines_.front();
            lines_.erase(lines_.begin());
            return true;
        };
        auto code = std::make_shared<const image::CodeImage>(std::move(made.code.value()));
        machine_ = std::make_unique<Machine>(std::make_shared<const tamarik::Program>(std::move(code)),
                                             tamarik::standardNatives(), std::move(options));
        machine_->start();
        return *machine_;
    }

    std::string printed_, shown_;
    std::vector<std::string> lines_;
    std::unique_ptr<Machine> machine_;
};

} // namespace

TEST_P(Waits, ForTheButtonOfAMessage) {
    Machine& machine = machineFor("Debug.Print 10 + MsgBox(\"Go on?\", vbYesNo + vbDefaultButton2, \"App\")");
    ASSERT_EQ(machine.run(), RunState::Waiting);
    EXPECT_EQ(machine.wait().kind, Wait::Kind::Message);
    EXPECT_EQ(machine.wait().text, "Go on?");
    EXPECT_EQ(machine.wait().title, "App");
    EXPECT_EQ(machine.wait().style, 4 + 256);
    EXPECT_EQ(machine.wait().usualButton, 7);
    EXPECT_EQ(machine.run(), RunState::Waiting) << "not answered yet";
    EXPECT_EQ(machine.callers().front().line, 2u);
    machine.answer({6, {}});
    EXPECT_EQ(machine.run(), RunState::Finished);
    EXPECT_EQ(printed_, " 16 \n");
}

TEST_P(Waits, ForATextOrCancel) {
    Machine& machine =
        machineFor("Dim s As String, i As Integer\nFor i = 1 To 3\n"
                   "s = InputBox(\"Name\", , \"J\xC3\xBCrgen\")\nDebug.Print s; Len(s); StrPtr(s) = 0\nNext");
    for (const std::optional<std::string>& text : {std::optional<std::string>("Zo\xC3\xAB"), {""}, {}}) {
        ASSERT_EQ(machine.run(), RunState::Waiting);
        EXPECT_EQ(machine.wait().kind, Wait::Kind::Input);
        EXPECT_EQ(machine.wait().usual, "J\xC3\xBCrgen");
        machine.answer({0, text});
    }
    EXPECT_EQ(machine.run(), RunState::Finished);
    EXPECT_EQ(printed_, "Zo\xC3\xAB 3 False\n 0 True\n 0 True\n");
}

TEST_P(Waits, ForEvents) {
    Machine& machine = machineFor("DoEvents\nDebug.Print DoEvents(); 1");
    for (int i = 0; i < 2; ++i) {
        ASSERT_EQ(machine.run(), RunState::Waiting);
        EXPECT_EQ(machine.wait().kind, Wait::Kind::Events);
        machine.answer({});
    }
    EXPECT_EQ(machine.run(), RunState::Finished);
    EXPECT_EQ(printed_, " 0  1 \n");
}

TEST_P(Waits, ForTheEndOfAPause) {
    Machine& machine = machineFor("Sleep 1500\nSleep -1\nDebug.Print 1", kSleep);
    for (const std::int64_t milliseconds : {std::int64_t{1500}, std::int64_t{0xFFFFFFFF}}) {
        ASSERT_EQ(machine.run(), RunState::Waiting);
        EXPECT_EQ(machine.wait().kind, Wait::Kind::Pause);
        EXPECT_EQ(machine.wait().milliseconds, milliseconds);
        machine.answer({});
    }
    EXPECT_EQ(machine.run(), RunState::Finished);
    EXPECT_EQ(printed_, " 1 \n");
}

TEST_P(Waits, AreLeftWhenTheHostStops) {
    Machine& machine = machineFor("Dim c As New Collection\nc.Add \"x\"\nMsgBox c(1)\nMsgBox c(1)");
    EXPECT_EQ(machine.run(), RunState::Waiting);
    EXPECT_EQ(machine.livingObjects(), std::vector<std::string>{"Collection"});
    machine_.reset();
}

TEST_P(Waits, KeepTheRestOfTheBudget) {
    Machine& machine = machineFor("Dim i As Long\nMsgBox \"\"\nFor i = 1 To 100000: Next");
    ASSERT_EQ(machine.run(1000), RunState::Waiting);
    EXPECT_GT(machine.budgetLeft(), 900);
    machine.answer({});
    EXPECT_EQ(machine.run(machine.budgetLeft()), RunState::StoppedByBudget);
    EXPECT_EQ(machine.budgetLeft(), 0);
}

TEST_P(Waits, AreAnsweredWithoutAWindow) {
    lines_ = {"Ann", ""};
    Machine& machine =
        machineFor("Dim i As Integer\nFor i = 1 To 3: Debug.Print InputBox(\"Name\", \"App\", \"Bob\"): Next\n"
                   "DoEvents\nDebug.Print MsgBox(\"Done\", vbRetryCancel)");
    EXPECT_EQ(tamarik::runWithoutWindow(machine), RunState::Finished);
    EXPECT_EQ(printed_, "Ann\nBob\n\n 4 \n");
    EXPECT_EQ(shown_, "App: Name\nApp: Name\nApp: Name\nDone\n");
}

TEST_P(Waits, OfAPauseLastWithoutAWindow) {
    Machine& machine = machineFor("Sleep 20\nDoEvents\nSleep 30", kSleep);
    std::vector<std::int64_t> paused;
    const auto state = tamarik::runWithoutWindow(machine, 1000, [&](std::int64_t time) { paused.push_back(time); });
    EXPECT_EQ(state, RunState::Finished);
    EXPECT_EQ(paused, (std::vector<std::int64_t>{20, 30}));
    EXPECT_EQ(shown_, "");
}

TEST_P(Waits, WithoutAWindowUseTheBudgetTogether) {
    Machine& machine = machineFor("Do: DoEvents: Loop");
    EXPECT_EQ(tamarik::runWithoutWindow(machine, 10'000), RunState::StoppedByBudget);
}

INSTANTIATE_TEST_SUITE_P(BothInterpreters, Waits, testing::Bool());

} // namespace language_programs
