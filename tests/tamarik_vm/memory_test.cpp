#include "tests/tamarik_vm/vm_world.h"

namespace tamarik {

namespace {

/// A program that allocates blocks of every sort.
class Memory : public VmWorld {
public:
    Memory() : main(procedure("Main")) {
        image.classes.push_back({});
        image.classes[0].name = text("Thing");
        image.classes[0].fields = {{object(1)}, {kTextSlot}};
        const auto n = main.add(kLongSlot), upper = main.add(kLongSlot), t = main.add(kTextSlot),
                   texts = main.add(arrayOf(BaseType::Text)), copies = main.add(arrayOf(BaseType::Text)),
                   v = main.add(kVariantSlot), w = main.add(kVariantSlot), o = main.add(object(1)),
                   items = main.add(kAnySlot), walk = main.add(kAnySlot);
        main.statement(1).op1(Op::LoadLong, 3, upper).op(Op::ReDim, texts, 0, 1).slots({n, upper});
        main.op1(Op::LoadText, text("a"), t).op(Op::JoinText, t, t, t).op(Op::StoreTextAt, t, texts, n);
        main.op(Op::CopyArray, copies, texts).op(Op::ArrayToVariant, v, copies).op(Op::CopyVariant, w, v);
        main.op1(Op::NewObject, 1, o).op(Op::StoreField, o, o, 0);
        main.op1(Op::NewLibraryObject, text("Collection"), items).op(Op::ObjectToVariant, v, items);
        main.op1(Op::CallLate, text("Add"), image::kNoSlot, v, 1)
            .word(static_cast<std::uint32_t>(image::LateUse::Call));
        main.slots({w}).op(Op::BeginEach, walk, v);
        const auto end = main.label();
        main.jump(Op::NextEach, end, w, walk).here(end);
        main.call(Op::CallNative, printItem, image::kNoSlot, {{Pass::Variant, v}}).op(Op::Return);
    }

    Code& main;
};

TEST_F(Memory, IsReportedWhenAnyAllocationFails) {
    const auto program = build();
    for (std::uint64_t n = 1;; ++n) {
        MachineOptions options;
        options.failingAllocation = n;
        const Ran ran = runOnce(program, false, options);
        // The last statement prints an object, which fails with its own error once there is enough memory.
        if (ran.number != 7) {
            EXPECT_EQ(ran.number, 13);
            EXPECT_GT(n, 12U);
            break;
        }
    }
}

TEST_F(Memory, IsLimited) {
    MachineOptions options;
    options.heapLimit = 200;
    const Ran ran = run(0, options);
    EXPECT_EQ(ran.number, 7);
}

TEST_F(Memory, ListsTheObjectsThatHoldThemselves) {
    const auto n = build();
    Machine machine(n, standardNatives(), {});
    machine.start();
    machine.run();
    EXPECT_THAT(machine.livingObjects(), testing::Contains("Thing"));
}

} // namespace

} // namespace tamarik
