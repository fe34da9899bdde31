// Generated programs that were verified are run, in both forms of the interpreter: whatever they do, memory stays whole.
#include "Components/Tamarik/functions/standard_natives.h"
#include "Components/Tamarik/vm/run_without_window.h"
#include "fuzz/repaired_header.h"
#include "tests/support/random_code.h"
#include <memory>

namespace {

constexpr std::int64_t kBudget = 20'000;
constexpr std::uint64_t kHeap = 8 << 20;

const tamarik::Natives& natives() {
    static const tamarik::Natives all = tamarik::standardNatives();
    return all;
}

std::string outcome(const std::shared_ptr<const tamarik::Program>& program, bool usesSwitch) {
    std::string printed;
    tamarik::MachineOptions options;
    options.heapLimit = kHeap;
    options.usesSwitch = usesSwitch;
    options.output.print = [&](std::string_view text) { printed += text; };
    tamarik::Machine machine{program, natives(), options};
    machine.start();
    const auto state = tamarik::runWithoutWindow(machine, kBudget);
    if (machine.error()) printed += std::to_string(machine.error()->number);
    return printed + "/" + std::to_string(int(state));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::size_t at = 0;
    const auto next = [&](std::uint32_t limit) {
        std::uint32_t number = 0;
        for (int i = 0; i < 2 && size > 0; ++i, ++at)
            number = number << 8 | ((data[at % size] + std::uint32_t(at / size)) & 0xFF);
        return number % limit;
    };
    static const support::RandomCode::Functions functions = [] {
        support::RandomCode::Functions found;
        for (const auto* name : {"Len", "Left", "Mid", "Chr", "Asc", "CStr", "Debug.PrintItem", "Debug.PrintLine"})
            if (const auto known = natives().find(name); !known.empty())
                found[name] = {known.front().result, known.front().parameters};
        return found;
    }();
    auto code = std::make_shared<image::CodeImage>(support::RandomCode(next, functions).make());
    fuzz::require(!image::verify(*code));
    const auto program = std::make_shared<const tamarik::Program>(code);
    try {
        fuzz::require(outcome(program, false) == outcome(program, true));
    } catch (const tamarik::Refusal&) {} // of instructions that the machine does not have yet
    return 0;
}
