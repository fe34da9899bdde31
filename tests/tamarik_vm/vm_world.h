#pragma once
// A program built by hand, run in both forms of the interpreter.
#include "Components/Tamarik/functions/standard_natives.h"
#include "Components/Tamarik/machine/machine.h"
#include "tests/support/code_builder.h"
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tamarik {

using namespace code_builder;

/// What a run did.
struct Ran {
    RunState state = RunState::Running;
    std::string printed;
    int number = 0; ///< of the error
    RunError error;
    std::uint64_t heapUsed = 0; ///< after the machine has ended
};

class VmWorld : public testing::Test, public Builder {
protected:
    VmWorld()
        : printItem(import("Debug.PrintItem", {}, std::vector{kVariantSlot})),
          printLine(import("Debug.PrintLine", {}, std::vector<SlotType>())) {}

    std::uint32_t printItem, printLine;

    Ran runOnce(const std::shared_ptr<const Program>& program, bool usesSwitch, MachineOptions options = {}) {
        Ran ran;
        options.usesSwitch = usesSwitch;
        options.output.print = [&ran](std::string_view text) { ran.printed += text; };
        Machine machine(program, standardNatives(), options);
        machine.start();
        ran.state = machine.run();
        if (machine.error()) {
            ran.error = *machine.error();
            ran.number = ran.error.number;
        }
        return ran;
    }

    /// Both forms of the interpreter must do the same.
    Ran run(std::uint32_t start = 0, const MachineOptions& options = {}) {
        const auto program = build(start);
        const Ran byGoto = runOnce(program, false, options), bySwitch = runOnce(program, true, options);
        EXPECT_EQ(byGoto.printed, bySwitch.printed);
        EXPECT_EQ(byGoto.number, bySwitch.number);
        EXPECT_EQ(byGoto.state, bySwitch.state);
        return byGoto;
    }
};

} // namespace tamarik
