// Generated programs are accepted and survive a round trip, then some of their words and types are changed. Whatever the
// verifier accepts, changed or not, runs in both forms of the interpreter: they agree, slots hold what the table of instructions
// promises, and memory stays whole.
#include "Components/Image/image.h"
#include "Components/Image/listing/disassemble.h"
#include "Components/Tamarik/functions/standard_natives.h"
#include "Components/Tamarik/machine/machine.h"
#include "fuzz/repaired_header.h"
#include "tests/support/random_code.h"
#include <cstdio>
#include <memory>

namespace {

constexpr std::int64_t kBudget = 2'000;
constexpr std::uint64_t kHeap = 8 << 20;

const tamarik::Natives& natives() {
    static const tamarik::Natives all = tamarik::standardNatives();
    return all;
}

/// What was done until now, for long runs; printed now and then, since some runs are ended from outside.
struct Counts {
    std::uint64_t generated = 0, changed = 0, refused = 0, ran = 0;

    void show() const {
        std::fprintf(stderr, "random_code: %llu generated, %llu changed, %llu of these refused, %llu ran\n",
                     static_cast<unsigned long long>(generated), static_cast<unsigned long long>(changed),
                     static_cast<unsigned long long>(refused), static_cast<unsigned long long>(ran));
    }
    void countRun() {
        constexpr std::uint64_t kShown = 10'000;
        if (++ran % kShown == 0) show();
    }
    ~Counts() { show(); }
};
Counts counts;

std::string outcome(const std::shared_ptr<const tamarik::Program>& program, bool usesSwitch) {
    std::string printed;
    tamarik::MachineOptions options;
    options.heapLimit = kHeap;
    options.usesSwitch = usesSwitch;
    options.output.print = [&](std::string_view text) { printed += text; };
    tamarik::Machine machine{program, natives(), options};
    machine.start();
    const auto state = machine.run(kBudget);
    if (machine.error()) printed += std::to_string(machine.error()->number);
    return printed + "/" + std::to_string(int(state));
}

void run(std::shared_ptr<const image::CodeImage> code) {
    const auto program = std::make_shared<const tamarik::Program>(std::move(code));
    try {
        // The form that checks tags comes first, since it says more of what is wrong.
        const auto checked = outcome(program, true);
        fuzz::require(outcome(program, false) == checked);
        counts.countRun();
    } catch (const tamarik::Refusal&) {} // of imports that were changed
}

const support::RandomCode::Functions& functions() {
    static const auto found = [] {
        support::RandomCode::Functions known;
        for (const auto* name : {"Len", "Left", "Mid", "Chr", "Asc", "CStr", "Debug.PrintItem", "Debug.PrintLine"})
            if (const auto forms = natives().find(name); !forms.empty())
                known[name] = {forms.front().result, forms.front().parameters};
        return known;
    }();
    return found;
}

/// Changes the type of a variable, or what else the tables say of a procedure or class.
void changeTable(image::CodeImage& code, const support::RandomNumber& next) {
    const auto changeType = [&](image::SlotType& type) {
        switch (next(3)) {
        case 0: type.base = static_cast<image::BaseType>(next(image::kBaseTypes)); break;
        case 1: type.form = static_cast<image::TypeForm>(next(4)); break;
        default: type.id = next(5);
        }
    };
    const auto one = [&](auto& list) -> auto& { return list[next(static_cast<std::uint32_t>(list.size()))]; };
    image::Procedure& procedure = one(code.procedures);
    switch (next(6)) {
    case 0:
        if (!procedure.variables.empty()) changeType(one(procedure.variables).type);
        break;
    case 1: changeType(one(one(code.classes).fields).type); break;
    case 2: changeType(one(code.globals).type); break;
    case 3: changeType(one(one(code.records).fields).type); break;
    case 4: changeType(one(code.arrays).element); break;
    default: procedure.resultSlot = next(20);
    }
}

void change(image::CodeImage& code, const support::RandomNumber& next) {
    for (std::uint32_t changes = 1 + next(3); changes > 0; --changes) {
        if (next(4) == 0)
            changeTable(code, next);
        else
            code.code[next(static_cast<std::uint32_t>(code.code.size()))] ^= 1U << next(32);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::size_t at = 0;
    // After the data the numbers go round, so that a short input makes a whole program.
    const support::RandomNumber next = [&](std::uint32_t limit) {
        std::uint32_t number = 0;
        for (int i = 0; i < 2 && size > 0; ++i, ++at)
            number = number << 8 | ((data[at % size] + std::uint32_t(at / size)) & 0xFF);
        return number % limit;
    };
    image::Image image;
    image.code = support::RandomCode(next, functions()).make();
    fuzz::require(!image::verify(image.code));
    ++counts.generated;
    const auto bytes = image::encode(image);
    auto decoded = image::decode(bytes);
    fuzz::require(decoded == image && image::encode(decoded) == bytes);
    if (next(4) == 0) {
        run(std::make_shared<const image::CodeImage>(std::move(image.code)));
        return 0;
    }
    ++counts.changed;
    change(decoded.code, next);
    if (image::verify(decoded.code)) {
        ++counts.refused;
        (void)image::disassemble(decoded.code, next(std::uint32_t(decoded.code.procedures.size())));
        return 0;
    }
    // What was changed is written with a checksum of its own, so a device would load it too.
    run(std::make_shared<const image::CodeImage>(image::decode(image::encode(decoded)).code));
    return 0;
}
