#include "tests/tamarik_vm/vm_world.h"

namespace tamarik {

namespace {

class Arrays : public VmWorld {
public:
    Arrays() : main(procedure("Main")) {
        variant = main.add(kVariantSlot);
        for (auto& slot : n) slot = main.add(kLongSlot);
    }

    Code& main;
    std::uint32_t variant, n[4];

    Arrays& number(std::uint32_t slot, std::int32_t value) {
        main.op1(Op::LoadLong, static_cast<std::uint32_t>(value), slot);
        return *this;
    }
    void printLong(std::uint32_t slot) {
        main.op(Op::LongToVariant, variant, slot, static_cast<std::uint32_t>(BaseType::Long));
        main.call(Op::CallNative, printItem, image::kNoSlot, {{Pass::Variant, variant}});
    }
    Ran finish() {
        main.op(Op::Return);
        return run();
    }
    void reDim(std::uint32_t array, std::int32_t lower, std::int32_t upper, bool keep = false) {
        number(n[2], lower).number(n[3], upper);
        main.op(Op::ReDim, array, keep ? 1 : 0, 1).slots({n[2], n[3]});
    }
};

TEST_F(Arrays, KeepWhatIsStoredWithinTheirBounds) {
    const auto a = main.add(arrayOf(BaseType::Long));
    reDim(a, -1, 1);
    number(n[0], 42).number(n[1], -1);
    main.op(Op::StoreLongAt, n[0], a, n[1]).op(Op::LoadLongAt, n[2], a, n[1]);
    printLong(n[2]);
    number(n[1], 2);
    main.op(Op::LoadLongAt, n[2], a, n[1]);
    const Ran ran = finish();
    EXPECT_EQ(ran.printed, " 42 ");
    EXPECT_EQ(ran.number, 9);
}

TEST_F(Arrays, FailBeforeTheyAreDimensioned) {
    const auto a = main.add(arrayOf(BaseType::Byte));
    main.op(Op::LoadByteAt, n[0], a, n[1]);
    EXPECT_EQ(finish().number, 9);
}

TEST_F(Arrays, KeepTheirElementsOnlyIfAsked) {
    const auto a = main.add(arrayOf(BaseType::Text)), t = main.add(kTextSlot);
    reDim(a, 0, 1);
    main.op1(Op::LoadText, text("kept"), t);
    number(n[1], 1);
    main.op(Op::StoreTextAt, t, a, n[1]);
    reDim(a, 0, 5, true);
    main.op(Op::LoadTextAt, t, a, n[1]).op(Op::LengthOfText, n[0], t);
    printLong(n[0]);
    reDim(a, 0, 5);
    main.op(Op::LoadTextAt, t, a, n[1]).op(Op::LengthOfText, n[0], t);
    printLong(n[0]);
    EXPECT_EQ(finish().printed, " 4  0 ");
}

TEST_F(Arrays, FindElementsOfSeveralDimensions) {
    const auto a = main.add(arrayOf(BaseType::Long)), one = main.add(kLongSlot), two = main.add(kLongSlot);
    number(one, 1).number(two, 2);
    main.op(Op::ReDim, a, 0, 2).slots({one, two, one, two});
    main.op(Op::FindElement, n[0], a, 2).slots({two, one});
    printLong(n[0]);
    main.op(Op::FindElement, n[0], a, 2).slots({one, two});
    printLong(n[0]);
    number(n[1], 7);
    main.op(Op::StoreLongFlat, n[1], a, n[0]).op(Op::LoadLongFlat, n[2], a, n[0]);
    printLong(n[2]);
    main.op(Op::UpperBound, n[2], a, two);
    printLong(n[2]);
    main.op(Op::FindElement, n[0], a, 1).slots({two});
    const Ran ran = finish();
    EXPECT_EQ(ran.printed, " 1  2  7  2 ");
    EXPECT_EQ(ran.number, 9);
}

TEST_F(Arrays, AreLockedWhileAnElementIsReferredTo) {
    const auto a = main.add(arrayOf(BaseType::Long)), r = main.add(refTo(BaseType::Long));
    reDim(a, 0, 3);
    main.op(Op::RefAt, r, a, n[1]);
    number(n[0], 5);
    main.op(Op::StoreLongRef, n[0], r).op(Op::LoadLongAt, n[2], a, n[1]);
    printLong(n[2]);
    reDim(a, 0, 4);
    const Ran ran = finish();
    EXPECT_EQ(ran.printed, " 5 ");
    EXPECT_EQ(ran.number, 10);
}

TEST_F(Arrays, AreUnlockedWhenTheReferenceIsGone) {
    const auto a = main.add(arrayOf(BaseType::Long)), r = main.add(refTo(BaseType::Long));
    reDim(a, 0, 3);
    number(n[1], 3).number(n[0], 200);
    main.op(Op::RefAt, r, a, n[1]).op(Op::StoreLongRef, n[0], r).op(Op::LoadLongAt, n[0], a, n[1]);
    printLong(n[0]);
    main.op(Op::LoadLongRef, n[0], r);
    printLong(n[0]);
    main.op(Op::Clear, r);
    reDim(a, 0, 4);
    const Ran ran = finish();
    EXPECT_EQ(ran.printed, " 200  200 ");
    EXPECT_EQ(ran.number, 0);
}

TEST_F(Arrays, AreCopiedWhenTheyAreAssigned) {
    const auto a = main.add(arrayOf(BaseType::Long)), b = main.add(arrayOf(BaseType::Long)),
               c = main.add(arrayOf(BaseType::Long));
    reDim(a, 0, 1);
    main.op(Op::CopyArray, b, a).op(Op::ShareArray, c, a);
    number(n[0], 9);
    main.op(Op::StoreLongAt, n[0], a, n[1]);
    main.op(Op::LoadLongAt, n[2], b, n[1]);
    printLong(n[2]);
    main.op(Op::LoadLongAt, n[2], c, n[1]);
    printLong(n[2]);
    main.op(Op::TakeArray, b, a).op(Op::LoadLongAt, n[2], b, n[1]);
    printLong(n[2]);
    main.op(Op::LoadLongAt, n[2], a, n[1]);
    const Ran ran = finish();
    EXPECT_EQ(ran.printed, " 0  9  9 ");
    EXPECT_EQ(ran.number, 9);
}

TEST_F(Arrays, FailInsteadOfTakingAllMemory) {
    const auto a = main.add(arrayOf(BaseType::Double));
    reDim(a, -2147483647 - 1, 2147483647);
    EXPECT_EQ(finish().number, 7);
}

TEST_F(Arrays, ConvertBetweenTextsAndBytes) {
    const auto a = main.add(arrayOf(BaseType::Byte)), t = main.add(kTextSlot);
    main.op1(Op::LoadText, text("A"), t).op(Op::TextToBytes, a, t).op(Op::LoadByteAt, n[0], a, n[1]);
    printLong(n[0]);
    main.op(Op::BytesToText, t, a).op(Op::LengthOfText, n[0], t);
    printLong(n[0]);
    EXPECT_EQ(finish().printed, " 65  1 ");
}

TEST_F(Arrays, HaveTextsOfAFixedLength) {
    image.arrays.push_back({{BaseType::Text}, 3, {{1, 2}}});
    const auto a = main.add(arrayOf(BaseType::Text)), t = main.add(kTextSlot);
    main.op1(Op::NewArray, 0, a);
    number(n[1], 2);
    main.op(Op::LoadTextAt, t, a, n[1]).op(Op::LengthOfText, n[0], t);
    printLong(n[0]);
    EXPECT_EQ(finish().printed, " 3 ");
}

TEST_F(Arrays, OfRecordsOwnWhatTheirFieldsHold) {
    image.records.push_back({{{{BaseType::Long}}, {{BaseType::Text}}, {arrayOf(BaseType::Long), 0}}});
    image.arrays.push_back({{BaseType::Long}, 0, {{0, 2}}});
    const auto a = main.add(arrayOf(BaseType::Record)), r = main.add(refTo(BaseType::Record)), t = main.add(kTextSlot),
               whole = main.add({BaseType::Record}), w = main.add(refTo(BaseType::Record));
    const auto inner = main.add(arrayOf(BaseType::Long));
    reDim(a, 1, 2);
    number(n[1], 2);
    main.op(Op::RefAt, r, a, n[1]).op1(Op::LoadText, text("name"), t).op(Op::StoreTextRef, t, r, 1);
    main.wide(Op::RefSlot, w, whole).op(Op::CopyRecord, w, r).op(Op::LoadTextRef, t, w, 1);
    main.op(Op::LengthOfText, n[0], t);
    printLong(n[0]);
    main.op(Op::LoadArrayRef, inner, w, 2);
    number(n[0], 1);
    main.op(Op::UpperBound, n[0], inner, n[0]);
    printLong(n[0]);
    EXPECT_EQ(finish().printed, " 4  2 ");
}

} // namespace

} // namespace tamarik
