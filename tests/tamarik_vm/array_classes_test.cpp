// Arrays of objects of a class contain no others, whichever way they take through Variants.
#include "tests/tamarik_vm/vm_world.h"

namespace tamarik {

namespace {

class ArraysOfClasses : public VmWorld {
public:
    ArraysOfClasses() : main(procedure("Main")) {
        image.classes.resize(2);
        image.classes[0].name = text("One");
        image.classes[1].name = text("Two");
        image.arrays.push_back({object(2), 0, {{0, 0}}});
        twos = main.add(arrayOf(BaseType::Object, 2));
        any = main.add(arrayOf(BaseType::Object));
        v = main.add(kVariantSlot);
        main.op1(Op::NewArray, 0, twos).op(Op::ArrayToVariant, v, twos);
    }

    int error() {
        main.op(Op::Return);
        return run().number;
    }

    Code& main;
    std::uint32_t twos, any, v;
};

TEST_F(ArraysOfClasses, AreNotSharedAsArraysOfAnyClass) {
    main.op(Op::ShareVariantArray, any, v);
    EXPECT_EQ(error(), 13);
}

TEST_F(ArraysOfClasses, AreSharedAsThemselves) {
    main.op(Op::ShareVariantArray, twos, v);
    EXPECT_EQ(error(), 0);
}

TEST_F(ArraysOfClasses, AreCopiedToArraysOfAnyClassButNotBack) {
    const auto copy = main.add(kVariantSlot);
    main.op(Op::VariantToArray, any, v).op(Op::ArrayToVariant, copy, any);
    main.op(Op::VariantToArray, twos, v).op(Op::VariantToArray, twos, copy);
    EXPECT_EQ(error(), 13);
}

TEST_F(ArraysOfClasses, AreNotStoredInAFieldOfAnotherClassByName) {
    image.classes[0].fields = {{arrayOf(BaseType::Object, 1)}};
    image::ClassMember items;
    items.name = text("Items");
    items.use = image::MemberUse::Field;
    image.classes[0].members.push_back(items);
    const auto one = main.add(object(1)), holder = main.add(kVariantSlot);
    main.op1(Op::NewObject, 1, one).op(Op::ObjectToVariant, holder, one);
    main.op1(Op::CallLate, text("Items"), image::kNoSlot, holder, 1)
        .word(static_cast<std::uint32_t>(image::LateUse::Let));
    main.slots({v});
    EXPECT_EQ(error(), 13);
}

} // namespace

} // namespace tamarik
