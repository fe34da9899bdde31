#include "tests/tamarik_vm/vm_world.h"

namespace tamarik {

namespace {

class Calls : public VmWorld {
public:
    /// Sub Main: keeps the number in a global for a look at the end.
    std::uint32_t answer = global(kLongSlot);

    std::int32_t answerOf(const std::shared_ptr<const Program>& program, bool usesSwitch) {
        MachineOptions options;
        options.usesSwitch = usesSwitch;
        Machine machine(program, standardNatives(), options);
        machine.start();
        EXPECT_EQ(machine.run(), RunState::Finished);
        return machine.globals()[answer].number;
    }
    std::int32_t answerOf() {
        const auto program = build();
        const std::int32_t byGoto = answerOf(program, false);
        EXPECT_EQ(byGoto, answerOf(program, true));
        return byGoto;
    }
};

void writeFib(Code& fib) {
    const auto n = fib.parameter(kLongSlot), result = fib.result(kLongSlot), a = fib.add(kLongSlot);
    const auto deeper = fib.label();
    fib.jump(Op::JumpGreaterEqualLongK, deeper, n, 2);
    fib.op(Op::Move, result, n).op(Op::Return);
    fib.here(deeper);
    fib.op(Op::AddLongK, a, n, 0xFF).call(Op::Call, fib.number(), result, {{Pass::Number, a}});
    fib.op(Op::AddLongK, a, n, 0xFE).call(Op::Call, fib.number(), a, {{Pass::Number, a}});
    fib.op(Op::AddLong, result, result, a).op(Op::Return);
}

TEST_F(Calls, PassNumbersByValue) {
    auto& main = procedure("Main");
    auto& fib = procedure("Fib");
    writeFib(fib);
    const auto n = main.add(kLongSlot);
    main.wide(Op::LoadShort, n, 20).call(Op::Call, fib.number(), n, {{Pass::Number, n}});
    main.op1(Op::StoreGlobal, answer, n).op(Op::Return);
    EXPECT_EQ(answerOf(), 6765);
}

TEST_F(Calls, PassVariablesByReference) {
    auto& main = procedure("Main");
    auto& twice = procedure("Twice");
    const auto p = twice.parameter(refTo(BaseType::Long)), t = twice.add(kLongSlot);
    twice.op(Op::LoadLongRef, t, p).op(Op::AddLong, t, t, t).op(Op::StoreLongRef, t, p).op(Op::Return);
    const auto n = main.add(kLongSlot);
    main.wide(Op::LoadShort, n, 21).call(Op::Call, twice.number(), image::kNoSlot, {{Pass::Address, n}});
    main.op1(Op::StoreGlobal, answer, n).op(Op::Return);
    EXPECT_EQ(answerOf(), 42);
}

TEST_F(Calls, ReleaseAReferenceThatIsAllTheyHold) {
    auto& main = procedure("Main");
    auto& look = procedure("Look");
    look.parameter(refTo(BaseType::Long));
    look.op(Op::Return);
    const auto array = main.add(arrayOf(BaseType::Long)), last = main.add(kLongSlot), first = main.add(kLongSlot);
    const auto element = main.add(refTo(BaseType::Long));
    const auto dimension = [&] { main.op(Op::ReDim, array, 0, 1).slots({first, last}); };
    main.wide(Op::LoadShort, last, 3);
    dimension();
    main.op(Op::RefAt, element, array, first).call(Op::Call, look.number(), image::kNoSlot, {{Pass::Ref, element}});
    main.op(Op::Clear, element);
    dimension(); // error 10 if the array is still locked
    main.op1(Op::StoreGlobal, answer, last).op(Op::Return);
    EXPECT_EQ(answerOf(), 3);
}

TEST_F(Calls, FailWhenTheStackIsFull) {
    auto& main = procedure("Main");
    main.statement(1).call(Op::Call, main.number(), image::kNoSlot, {}).op(Op::Return);
    const Ran ran = run();
    EXPECT_EQ(ran.state, RunState::Failed);
    EXPECT_EQ(ran.number, 28);
    EXPECT_EQ(ran.error.text, "Out of stack space");
    EXPECT_EQ(ran.error.callers.size(), kMostReportedCallers);
}

TEST_F(Calls, FailSoonerOnASmallerStack) {
    auto& main = procedure("Main");
    const auto depth = main.add(kLongSlot), counter = global(kLongSlot);
    main.op1(Op::LoadGlobal, counter, depth).op(Op::AddLongK, depth, depth, 1).op1(Op::StoreGlobal, counter, depth);
    main.call(Op::Call, main.number(), image::kNoSlot, {}).op(Op::Return);
    MachineOptions options;
    options.stackSlots = 800;
    Machine machine(build(), standardNatives(), options);
    machine.start();
    EXPECT_EQ(machine.run(), RunState::Failed);
    EXPECT_EQ(machine.error()->number, 28);
    // Frames of 8 slots, one of which is the machine's.
    EXPECT_EQ(machine.globals()[counter].number, 99);
}

TEST_F(Calls, StopWhenTheBudgetIsUsed) {
    auto& main = procedure("Main");
    const auto again = main.label();
    main.here(again).jump(Op::Jump, again);
    Machine machine(build(), standardNatives(), {});
    machine.start();
    EXPECT_EQ(machine.run(1000), RunState::StoppedByBudget);
    EXPECT_EQ(machine.run(1000), RunState::StoppedByBudget);
}

TEST_F(Calls, CountWhatFunctionsCopy) {
    const auto space = import("Space$", kTextSlot, std::vector{kLongSlot});
    auto& main = procedure("Main");
    const auto again = main.label();
    const auto n = main.add(kLongSlot), text = main.add(kTextSlot), rounds = main.add(kLongSlot);
    main.wide(Op::LoadShort, n, 32767).here(again).op(Op::AddLong, rounds, rounds, n);
    main.call(Op::CallNative, space, text, {{Pass::Number, n}}).jump(Op::Jump, again);
    Machine machine(build(), standardNatives(), {});
    machine.start();
    EXPECT_EQ(machine.run(1000000), RunState::StoppedByBudget); // before the sum of the rounds overflows
}

TEST_F(Calls, CountTextsThatFunctionsMake) {
    const auto lower = import("LCase$", kTextSlot, std::vector{kTextSlot});
    const auto space = import("Space$", kTextSlot, std::vector{kLongSlot});
    auto& main = procedure("Main");
    const auto again = main.label();
    const auto n = main.add(kLongSlot), text = main.add(kTextSlot), made = main.add(kTextSlot),
               rounds = main.add(kLongSlot);
    main.wide(Op::LoadShort, n, 32767).call(Op::CallNative, space, text, {{Pass::Number, n}}).here(again);
    main.op(Op::AddLong, rounds, rounds, n);
    main.call(Op::CallNative, lower, made, {{Pass::Text, text}}).jump(Op::Jump, again);
    Machine machine(build(), standardNatives(), {});
    machine.start();
    EXPECT_EQ(machine.run(1000000), RunState::StoppedByBudget); // before the sum of the rounds overflows
}

TEST_F(Calls, ContinueWhereTheBudgetEndedAndNotAfterTheEnd) {
    auto& main = procedure("Main");
    const auto counter = global(kLongSlot);
    const auto n = main.add(kLongSlot);
    const auto again = main.label();
    main.here(again).op(Op::AddLongK, n, n, 1).op1(Op::StoreGlobal, counter, n);
    main.jump(Op::JumpLessLongK, again, n, 100).op(Op::Return);
    const auto program = build();
    for (const bool usesSwitch : {false, true}) {
        MachineOptions options;
        options.usesSwitch = usesSwitch;
        Machine machine(program, standardNatives(), options);
        machine.start();
        int parts = 1;
        for (; machine.run(50) == RunState::StoppedByBudget; ++parts) ASSERT_LT(parts, 100);
        EXPECT_GT(parts, 2);
        EXPECT_EQ(machine.globals()[counter].number, 100);
        EXPECT_EQ(machine.run(50), RunState::Finished);
        EXPECT_EQ(machine.globals()[counter].number, 100);
    }
}

TEST_F(Calls, StopALoopOfErrorsToo) {
    auto& main = procedure("Main");
    const auto trap = main.label(), again = main.label();
    const auto n = main.add(kLongSlot);
    main.statement(1).jump(Op::OnErrorGoTo, trap).here(again).statement(2).op(Op::DivideLong, n, n, n);
    main.here(trap).statement(3).jump(Op::ResumeAt, again);
    Machine machine(build(), standardNatives(), {});
    machine.start();
    EXPECT_EQ(machine.run(1000), RunState::StoppedByBudget);
}

TEST_F(Calls, ReportWhereAnErrorHappened) {
    auto& main = procedure("Main");
    auto& inner = procedure("Inner");
    const auto a = inner.add(kLongSlot), b = inner.add(kLongSlot);
    inner.statement(7).wide(Op::LoadShort, a, 1).statement(8).op(Op::DivideLong, a, a, b).op(Op::Return);
    main.statement(3).call(Op::Call, inner.number(), image::kNoSlot, {}).op(Op::Return);
    const Ran ran = run();
    ASSERT_EQ(ran.number, 11);
    ASSERT_EQ(ran.error.callers.size(), 2U);
    EXPECT_EQ(ran.error.callers[0].procedure, "Inner");
    EXPECT_EQ(ran.error.callers[0].line, 8U);
    EXPECT_EQ(ran.error.callers[0].file, "Main.bas");
    EXPECT_EQ(ran.error.callers[1].line, 3U);
}

} // namespace

} // namespace tamarik
