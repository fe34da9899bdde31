// Whatever a program is, its code passes verification, survives its container, and ends or is stopped in both forms of the
// interpreter with the same output. The first byte selects the options.
#include "Components/Image/image.h"
#include "Components/Image/verify/verify.h"
#include "Components/Tamarik/functions/standard_natives.h"
#include "Components/Tamarik/machine/run_without_window.h"
#include "fuzz/repaired_header.h"
#include "tests/qltoolkit/checked_program.h"

namespace {

constexpr std::int64_t kBudget = 20'000;
constexpr std::uint64_t kHeap = 8 << 20;

std::string outcome(const std::shared_ptr<const tamarik::Program>& program, bool usesSwitch) {
    static const tamarik::Natives natives = tamarik::standardNatives();
    std::string printed;
    tamarik::MachineOptions options;
    options.heapLimit = kHeap;
    options.usesSwitch = usesSwitch;
    options.output.print = [&](std::string_view text) { printed += text; };
    try {
        tamarik::Machine machine{program, natives, options};
        machine.start();
        const auto state = tamarik::runWithoutWindow(machine, kBudget, [](std::int64_t) {});
        if (machine.error()) printed += std::to_string(machine.error()->number);
        return printed + "/" + std::to_string(int(state));
    } catch (const tamarik::Refusal& refusal) { return refusal.what(); }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0 || size > 20'000) return 0;
    test::CheckedProgram program;
    program.options.isIncomplete = data[0] & 1;
    program.addAll({reinterpret_cast<const char*>(data) + 1, size - 1});
    auto compiled = program.compiled();
    if (!compiled.code) return 0;
    image::Image image;
    image.code = std::move(*compiled.code);
    const auto decoded = std::make_shared<image::Image>(image::decode(image::encode(image)));
    fuzz::require(decoded->code == image.code);
    fuzz::require(!image::verify(image.code));
    if (image.code.start == image::kNone) return 0;
    const auto code = std::shared_ptr<const image::CodeImage>(decoded, &decoded->code);
    const auto loaded = std::make_shared<const tamarik::Program>(code);
    fuzz::require(outcome(loaded, false) == outcome(loaded, true));
    return 0;
}
