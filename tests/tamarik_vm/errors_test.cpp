#include "tests/tamarik_vm/vm_world.h"

namespace tamarik {

namespace {

class Errors : public VmWorld {
public:
    Errors() : main(procedure("Main")) {
        variant = main.add(kVariantSlot);
        for (auto& slot : n) slot = main.add(kLongSlot);
    }

    Code& main;
    std::uint32_t variant, n[3];

    void print(std::int32_t value) {
        main.op1(Op::LoadLong, static_cast<std::uint32_t>(value), n[2]);
        printLong(n[2]);
    }
    void printLong(std::uint32_t slot) {
        main.op(Op::LongToVariant, variant, slot, static_cast<std::uint32_t>(BaseType::Long));
        main.call(Op::CallNative, printItem, image::kNoSlot, {{Pass::Variant, variant}});
    }
    /// 1 / 0 as whole numbers.
    void failing() { main.op1(Op::LoadLong, 1, n[0]).op1(Op::LoadLong, 0, n[1]).op(Op::DivideLong, n[0], n[0], n[1]); }
};

TEST_F(Errors, JumpToTheHandler) {
    const auto trap = main.label();
    main.statement(1).jump(Op::OnErrorGoTo, trap);
    main.statement(2);
    failing();
    main.statement(3);
    print(1);
    main.here(trap).statement(4);
    print(2);
    main.op(Op::Return);
    EXPECT_EQ(run().printed, " 2 ");
}

TEST_F(Errors, AreIgnoredByResumeNext) {
    main.statement(1).op(Op::OnErrorResumeNext).statement(2);
    failing();
    print(1);
    main.statement(3);
    print(2);
    main.statement(4).op(Op::Return);
    EXPECT_EQ(run().printed, " 2 ");
}

TEST_F(Errors, ContinueWithTheStatementThatFailedOrTheNext) {
    const auto trap = main.label(), next = main.label();
    const auto zero = main.add(kLongSlot);
    main.statement(1).jump(Op::OnErrorGoTo, trap);
    main.statement(2).op1(Op::LoadLong, 8, n[0]).op(Op::DivideLong, n[0], n[0], zero);
    printLong(n[0]);
    main.statement(3).op(Op::Return);
    main.here(trap).statement(4).jump(Op::JumpGreaterLongK, next, zero, 0);
    main.wide(Op::LoadShort, zero, 2).op(Op::Resume);
    main.here(next).op(Op::Return);
    EXPECT_EQ(run().printed, " 4 ");
}

TEST_F(Errors, InAHandlerGoToTheCaller) {
    auto& inner = procedure("Inner");
    const auto trap = inner.label();
    const auto a = inner.add(kLongSlot), b = inner.add(kLongSlot);
    inner.statement(1).jump(Op::OnErrorGoTo, trap).statement(2).op(Op::DivideLong, a, a, b);
    inner.here(trap).statement(3).op(Op::ModLong, a, a, b).op(Op::Return);
    main.statement(1).op(Op::OnErrorResumeNext);
    main.statement(2).call(Op::Call, inner.number(), image::kNoSlot, {});
    main.statement(3);
    print(5);
    main.op(Op::Return);
    EXPECT_EQ(run().printed, " 5 ");
}

TEST_F(Errors, OfResumeWithoutAnError) {
    main.statement(1).op(Op::ResumeNext).op(Op::Return);
    EXPECT_EQ(run().number, 20);
}

TEST_F(Errors, RaisedByNumber) {
    main.statement(1).op1(Op::LoadLong, 53, n[0]).op(Op::RaiseError, n[0]).op(Op::Return);
    const Ran ran = run();
    EXPECT_EQ(ran.number, 53);
    EXPECT_EQ(ran.error.text, "File not found");
}

TEST_F(Errors, ReleaseTheTemporariesOfTheStatement) {
    const auto array = main.add(arrayOf(BaseType::Long)), reference = main.add(refTo(BaseType::Long), true);
    main.statement(1).op(Op::OnErrorResumeNext);
    main.statement(2).op1(Op::LoadLong, 3, n[1]).op(Op::ReDim, array, 0, 1).slots({n[0], n[1]});
    main.statement(3).op(Op::RefAt, reference, array, n[0]);
    failing();
    main.statement(4).op1(Op::LoadLong, 0, n[0]).op1(Op::LoadLong, 5, n[1]);
    main.op(Op::ReDim, array, 0, 1).slots({n[0], n[1]}).op1(Op::LoadLong, 1, n[0]);
    main.op(Op::UpperBound, n[0], array, n[0]);
    printLong(n[0]);
    main.statement(5).op(Op::Return);
    EXPECT_EQ(run().printed, " 5 ");
}

TEST_F(Errors, OfReturnWithoutGoSub) {
    main.op(Op::ReturnSub).op(Op::Return);
    EXPECT_EQ(run().number, 3);
}

TEST_F(Errors, AreNotMadeByGoSub) {
    const auto sub = main.label();
    main.jump(Op::GoSub, sub);
    print(2);
    main.op(Op::Return).here(sub);
    print(1);
    main.op(Op::ReturnSub);
    EXPECT_EQ(run().printed, " 1  2 ");
}

TEST_F(Errors, OfEndlessGoSubs) {
    const auto sub = main.label();
    main.here(sub).jump(Op::GoSub, sub);
    EXPECT_EQ(run().number, 28);
}

TEST_F(Errors, OfALoopThatWasEnteredByAJump) {
    main.op(Op::LoopEntered, n[0]).op(Op::Return);
    EXPECT_EQ(run().number, 92);
}

TEST(RunErrorText, ShowsThePlaceAndTheCallers) {
    RunError error{9, "Subscript out of range", "", {}};
    EXPECT_EQ(textOf(error), "run-time error 9: Subscript out of range");
    error.callers = {{"a.bas", "Inner", 5}};
    EXPECT_EQ(textOf(error), "a.bas:5: run-time error 9: Subscript out of range\n  in Inner");
    error.callers.push_back({"b.bas", "Main", 12});
    EXPECT_EQ(
        textOf(error, [](const std::string& file) { return "folder/" + file; }),
        "folder/a.bas:5: run-time error 9: Subscript out of range\n  in Inner\n  called by Main (folder/b.bas:12)");
    const RunError stopped{RunError::kStopped, "Stopped\nby\x1B[2J", "", {}};
    EXPECT_EQ(textOf(stopped), "Stopped\\nby\\u001B[2J");
}

TEST_F(Errors, AreReadFromTheErrObject) {
    const auto err = import("Err", kAnySlot, std::vector<SlotType>());
    const auto object = main.add(kAnySlot), v = main.add(kVariantSlot);
    main.statement(1).op(Op::OnErrorResumeNext).statement(2);
    failing();
    for (const auto* name : {"Number", "description"}) {
        main.statement(3).call(Op::CallNative, err, object, {}).op(Op::ObjectToVariant, v, object);
        main.op1(Op::CallLate, text(name), v, v, 0).word(static_cast<std::uint32_t>(image::LateUse::Get));
        main.call(Op::CallNative, printItem, image::kNoSlot, {{Pass::Variant, v}});
    }
    main.statement(4).op(Op::Return);
    EXPECT_EQ(run().printed, " 11 Division by zero");
}

} // namespace

} // namespace tamarik
