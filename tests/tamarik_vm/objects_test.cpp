#include "tests/tamarik_vm/vm_world.h"

namespace tamarik {

namespace {

/// A class "Thing" with a field that holds another Thing and a name, whose Terminate prints the name.
class Objects : public VmWorld {
public:
    Objects() : main(procedure("Main")) {
        image.classes.push_back({});
        thing().name = text("Thing");
        thing().fields = {{object(1)}, {kTextSlot}};
        for (auto& slot : o) slot = main.add(object(1));
        variant = main.add(kVariantSlot);
        t = main.add(kTextSlot);
    }

    Code& main;
    std::uint32_t o[3], variant, t;

    image::ClassInfo& thing() { return image.classes.front(); }

    Code& method(std::string_view name, image::MemberUse use = image::MemberUse::Method) {
        Code& code = procedure(name);
        code.parameter(object(1));
        image::ClassMember member;
        member.name = text(name);
        member.use = use;
        member.target = code.number();
        thing().members.push_back(member);
        return code;
    }
    void printInTerminate() {
        Code& code = method("Class_Terminate");
        thing().terminate = code.number();
        const auto v = code.add(kVariantSlot), name = code.add(kTextSlot);
        code.op(Op::LoadField, name, 0, 1).op(Op::TextToVariant, v, name);
        code.call(Op::CallNative, printItem, image::kNoSlot, {{Pass::Variant, v}}).op(Op::Return);
    }
    void make(std::uint32_t slot, std::string_view name) {
        main.op1(Op::NewObject, 1, slot).op1(Op::LoadText, text(name), t).op(Op::StoreField, t, slot, 1);
    }
    void print(std::string_view words) {
        main.op1(Op::LoadText, text(words), t).op(Op::TextToVariant, variant, t);
        main.call(Op::CallNative, printItem, image::kNoSlot, {{Pass::Variant, variant}});
    }
    std::string printed() {
        main.op(Op::Return);
        const Ran ran = run();
        EXPECT_EQ(ran.number, 0) << ran.error.text;
        return ran.printed;
    }
};

TEST_F(Objects, AreTerminatedAtTheirLastRelease) {
    printInTerminate();
    make(o[0], "a");
    main.op(Op::CopyObject, o[1], o[0]).op(Op::Clear, o[0]);
    print("-");
    main.op(Op::Clear, o[1]);
    print("+");
    EXPECT_EQ(printed(), "-a+");
}

TEST_F(Objects, AreTerminatedBeforeWhatTheirFieldsHold) {
    printInTerminate();
    make(o[0], "outer");
    make(o[1], " inner");
    main.op(Op::StoreField, o[1], o[0], 0).op(Op::Clear, o[1]);
    make(o[2], " last");
    EXPECT_EQ(printed(), "outer inner last");
}

TEST_F(Objects, ThatTerminateStoresStayAlive) {
    const auto kept = global(object(1));
    Code& code = method("Class_Terminate");
    thing().terminate = code.number();
    code.op1(Op::StoreGlobal, kept, 0).op(Op::Return);
    make(o[0], "a");
    main.op(Op::Clear, o[0]).op1(Op::LoadGlobal, kept, o[0]).op(Op::LoadField, t, o[0], 1);
    main.op(Op::TextToVariant, variant, t);
    main.call(Op::CallNative, printItem, image::kNoSlot, {{Pass::Variant, variant}});
    EXPECT_EQ(printed(), "a");
}

TEST_F(Objects, RunInitializeBeforeTheyAreAssigned) {
    Code& code = method("Class_Initialize");
    thing().initialize = code.number();
    const auto name = code.add(kTextSlot);
    code.op1(Op::LoadText, text("ready"), name).op(Op::StoreField, name, 0, 1).op(Op::Return);
    main.op1(Op::NewObject, 1, o[0]).op(Op::LoadField, t, o[0], 1).op(Op::TextToVariant, variant, t);
    main.call(Op::CallNative, printItem, image::kNoSlot, {{Pass::Variant, variant}});
    EXPECT_EQ(printed(), "ready");
}

TEST_F(Objects, GiveAnErrorOfInitializeToTheirMaker) {
    Code& code = method("Class_Initialize");
    thing().initialize = code.number();
    const auto n = code.add(kLongSlot);
    code.op1(Op::LoadLong, 77, n).op(Op::RaiseError, n).op(Op::Return);
    main.statement(1).op(Op::OnErrorResumeNext).statement(2).op1(Op::NewObject, 1, o[0]).statement(3);
    print("next");
    EXPECT_EQ(printed(), "next");
}

TEST_F(Objects, EndTheProgramWithAnErrorInTerminate) {
    Code& code = method("Class_Terminate");
    thing().terminate = code.number();
    const auto n = code.add(kLongSlot);
    code.op1(Op::LoadLong, 77, n).op(Op::RaiseError, n).op(Op::Return);
    make(o[0], "a");
    main.statement(1).op(Op::OnErrorResumeNext).statement(2).op(Op::Clear, o[0]).statement(3).op(Op::Return);
    EXPECT_EQ(run().number, 77);
}

/// The long one takes 1.3 GB.
#ifdef NDEBUG
constexpr std::uint32_t kLongList = 10'000'000;
#else
constexpr std::uint32_t kLongList = 1'000'000;
#endif

TEST_F(Objects, OfALongListAreReleasedWithoutRecursion) {
    const auto n = main.add(kLongSlot), end = main.add(kLongSlot);
    const auto again = main.label();
    main.op1(Op::LoadLong, kLongList, end).here(again);
    main.op1(Op::NewObject, 1, o[1]).op(Op::StoreField, o[0], o[1], 0).op(Op::TakeObject, o[0], o[1]);
    main.jump(Op::ForLong, again, n, end, 1);
    print("made");
    main.op(Op::Clear, o[0]);
    print(" released");
    EXPECT_EQ(printed(), "made released");
}

TEST_F(Objects, FailWhereNothingIsUsed) {
    main.op(Op::LoadField, t, o[0], 1).op(Op::Return);
    EXPECT_EQ(run().number, 91);
}

TEST_F(Objects, CallMembersByName) {
    Code& twice = method("Twice", image::MemberUse::Get);
    const auto p = twice.parameter(refTo(BaseType::Long)), result = twice.result(kLongSlot), n = twice.add(kLongSlot);
    thing().members.back().parameters = {{BaseType::Long}};
    thing().members.back().result = BaseType::Long;
    twice.op(Op::LoadLongRef, n, p).op(Op::AddLong, result, n, n).op(Op::StoreLongRef, result, p).op(Op::Return);
    make(o[0], "a");
    const auto v = main.add(kVariantSlot), argument = main.add(kVariantSlot);
    main.op(Op::ObjectToVariant, v, o[0]).op1(Op::LoadText, text("21"), t).op(Op::TextToVariant, argument, t);
    main.op1(Op::CallLate, text("TWICE"), variant, v, 1).word(static_cast<std::uint32_t>(image::LateUse::Get));
    main.slots({argument});
    main.call(Op::CallNative, printItem, image::kNoSlot, {{Pass::Variant, variant}});
    main.call(Op::CallNative, printItem, image::kNoSlot, {{Pass::Variant, argument}});
    EXPECT_EQ(printed(), " 42  42 ");
}

TEST_F(Objects, AreReplacedByTheirDefaultMemberInOperators) {
    Code& value = method("Value", image::MemberUse::Get);
    const auto result = value.result(kLongSlot);
    value.op1(Op::LoadLong, 40, result).op(Op::Return);
    thing().defaultMember = text("Value");
    make(o[0], "a");
    const auto v = main.add(kVariantSlot), n = main.add(kLongSlot);
    main.op(Op::ObjectToVariant, v, o[0]).op1(Op::LoadLong, 2, n);
    main.op(Op::LongToVariant, variant, n, static_cast<std::uint32_t>(BaseType::Long));
    main.op1(Op::Operate, image::OperationWord{image::VariantOperator::Add}.packed(), variant, v, variant);
    main.call(Op::CallNative, printItem, image::kNoSlot, {{Pass::Variant, variant}});
    EXPECT_EQ(printed(), " 42 ");
}

TEST_F(Objects, AreReachedThroughAnInterface) {
    image.classes.push_back({});
    image.classes[1].name = text("IShape");
    Code& area = procedure("IShape_Area");
    area.parameter(object(1));
    const auto result = area.result(kLongSlot);
    area.op1(Op::LoadLong, 6, result).op(Op::Return);
    thing().implementations.push_back({2, {area.number()}});
    const auto shape = main.add(object(2)), n = main.add(kLongSlot);
    make(o[0], "a");
    main.op1(Op::CheckInterface, 2, shape, o[0]);
    main.call(Op::CallInterface, 2, n, {{Pass::Object, shape}});
    main.op(Op::LongToVariant, variant, n, static_cast<std::uint32_t>(BaseType::Long));
    main.call(Op::CallNative, printItem, image::kNoSlot, {{Pass::Variant, variant}});
    main.op1(Op::CastObject, 2, shape, o[0]).op(Op::Return);
    const Ran ran = run();
    EXPECT_EQ(ran.printed, " 6 ");
    EXPECT_EQ(ran.number, 13);
}

TEST_F(Objects, HandleEventsInTheOrderOfTheirConnection) {
    image.classes.push_back({});
    auto& source = image.classes[1];
    source.name = text("Source");
    source.events.push_back({text("Changed"), {refTo(BaseType::Long)}});
    thing().fields = {{object(2)}, {kTextSlot}};
    Code& handler = procedure("Source_Changed");
    handler.parameter(object(1));
    const auto p = handler.parameter(refTo(BaseType::Long)), n = handler.add(kLongSlot), name = handler.add(kTextSlot),
               v = handler.add(kVariantSlot);
    handler.op(Op::LoadLongRef, n, p).op(Op::AddLongK, n, n, 1).op(Op::StoreLongRef, n, p);
    handler.op(Op::LoadField, name, 0, 1).op(Op::TextToVariant, v, name);
    handler.call(Op::CallNative, printItem, image::kNoSlot, {{Pass::Variant, v}}).op(Op::Return);
    thing().sinks.push_back({0, 2, {{0, handler.number()}}});
    const auto s = main.add(object(2)), count = main.add(kLongSlot);
    main.op1(Op::NewObject, 2, s);
    make(o[0], "a");
    make(o[1], "b");
    main.op(Op::SetSource, s, o[0], 0).op(Op::SetSource, s, o[1], 0).op(Op::SetSource, s, o[0], 0);
    main.call(Op::RaiseEvent, 0, 0, {{Pass::Address, count}}, s);
    main.op(Op::LongToVariant, variant, count, static_cast<std::uint32_t>(BaseType::Long));
    main.call(Op::CallNative, printItem, image::kNoSlot, {{Pass::Variant, variant}});
    main.op(Op::Clear, o[1]).call(Op::RaiseEvent, 0, 0, {{Pass::Address, count}}, s);
    EXPECT_EQ(printed(), "ba 2 a");
}

} // namespace

} // namespace tamarik
