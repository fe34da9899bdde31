// Random code that verification accepts does no harm, and both forms of the interpreter do the same with it.
#include "tests/support/random_code.h"
#include "tests/tamarik_vm/vm_world.h"
#include <cstdlib>
#include <random>

namespace tamarik {

namespace {

support::RandomCode::Functions functions() {
    const image::SlotType none, number{BaseType::Long}, words{BaseType::Text}, any{BaseType::Object},
        variant{BaseType::Variant};
    return {
        {"Debug.PrintItem", {none, {variant}}}, {"Debug.PrintLine", {none, {}}}, {"Left$", {words, {words, number}}},
        {"ChrW$", {words, {number}}},           {"AscW", {number, {words}}},     {"Err", {any, {}}}};
}

/// How a run ended, with a digest of what it printed.
struct Outcome {
    RunState state;
    int number;
    std::size_t printed;
    friend bool operator==(const Outcome&, const Outcome&) = default;
};

Outcome runOnce(const std::shared_ptr<const Program>& program, bool usesSwitch) {
    std::string printed;
    MachineOptions options;
    options.usesSwitch = usesSwitch;
    options.heapLimit = std::uint64_t{1} << 20;
    options.output.print = [&](std::string_view text) {
        if (printed.size() < 10000) printed += text;
    };
    Machine machine(program, standardNatives(), options);
    machine.start();
    const RunState state = machine.run(20000);
    return {state, machine.error() ? machine.error()->number : 0, std::hash<std::string>()(printed)};
}

TEST(RandomCode, DoesTheSameInBothForms) {
    const char* const first = std::getenv("FERNWICK_SEED");
    const char* const count = std::getenv("FERNWICK_RANDOM_RUNS");
    const unsigned from = first ? static_cast<unsigned>(std::atol(first)) : 1;
    const unsigned runs = count ? static_cast<unsigned>(std::atol(count)) : 300;
    unsigned accepted = 0;
    for (unsigned seed = from; seed < from + runs; ++seed) {
        std::mt19937 generator(seed);
        support::RandomCode random([&](std::uint32_t limit) { return generator() % limit; }, functions());
        const auto code = std::make_shared<image::CodeImage>(random.make());
        if (image::verify(*code)) continue;
        ++accepted;
        const auto program = std::make_shared<const Program>(code);
        const Outcome byGoto = runOnce(program, false), bySwitch = runOnce(program, true);
        ASSERT_EQ(byGoto, bySwitch) << "seed " << seed;
    }
    EXPECT_GT(accepted, runs / 4);
}

} // namespace

} // namespace tamarik
