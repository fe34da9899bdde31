// Generated programs are accepted and survive a round trip, then their words and types are changed one by one; a change that
// the verifier refuses is undone. Each program that it accepts runs in both forms of the interpreter: they agree, slots hold what
// the table of instructions promises, and memory stays whole.
//
// A long run, with a count of the programs each minute:
//   ASAN_OPTIONS=malloc_context_size=2 random_code_fuzz -seed=1 -entropic=0 -max_len=64 -len_control=0 -timeout=60 FOLDER
// FOLDER is for inputs that reach new code.
#include "Components/Image/code/instruction.h"
#include "Components/Image/image.h"
#include "Components/Image/listing/disassemble.h"
#include "Components/Tamarik/functions/standard_natives.h"
#include "Components/Tamarik/machine/run_without_window.h"
#include "fuzz/repaired_header.h"
#include "tests/support/random_code.h"
#include <algorithm>
#include <cstdio>
#include <ctime>
#include <memory>
#include <random>
#include <span>
#include <string_view>

namespace {

constexpr std::int64_t kBudget = 2'000;
constexpr std::uint64_t kHeap = 1 << 20;
constexpr std::size_t kMostPrinted = 10'000;
constexpr int kFunctions = 12;            ///< of the runtime, for each program
constexpr int kChanges = 200;             ///< that are tried
constexpr std::size_t kStackSlots = 4096; ///< few, since each machine begins with a stack of zeros

const tamarik::Natives& natives() {
    static const tamarik::Natives all = tamarik::standardNatives();
    return all;
}

/// What was done until now, for long runs; printed each minute, since some runs are ended from outside.
struct Counts {
    std::uint64_t generated = 0, changed = 0, refused = 0, ran = 0;

    void show() const {
        std::fprintf(stderr, "random_code: %llu generated, %llu changed, %llu of these refused, %llu ran\n",
                     static_cast<unsigned long long>(generated), static_cast<unsigned long long>(changed),
                     static_cast<unsigned long long>(refused), static_cast<unsigned long long>(ran));
    }
    void countRun() {
        ++ran;
        const std::time_t now = std::time(nullptr);
        if (now - shown_ < kSecondsBetween) return;
        shown_ = now;
        show();
    }
    ~Counts() { show(); }

private:
    static constexpr std::time_t kSecondsBetween = 60;

    std::time_t shown_ = std::time(nullptr);
};
Counts counts;

/// What a host gives that is the same for both forms of the interpreter.
tamarik::MachineOptions options(bool usesSwitch, std::string& printed) {
    tamarik::MachineOptions made;
    made.heapLimit = kHeap;
    made.stackSlots = kStackSlots;
    made.usesSwitch = usesSwitch;
    made.output.print = [&printed](std::string_view text) {
        if (printed.size() < kMostPrinted) printed += text;
    };
    auto& around = made.surroundings;
    around.now = around.universalNow = [] { return basic::Date{40000.25}; };
    around.milliseconds = [] { return 1000.0; };
    return made;
}

std::string outcome(const std::shared_ptr<const tamarik::Program>& program, bool usesSwitch) {
    std::string printed;
    tamarik::Machine machine{program, natives(), options(usesSwitch, printed)};
    machine.start();
    const auto state = tamarik::runWithoutWindow(machine, kBudget, [](std::int64_t) {});
    if (machine.error()) printed += std::to_string(machine.error()->number);
    return printed + "/" + std::to_string(int(state));
}

void run(const image::CodeImage& code) {
    const auto program = std::make_shared<const tamarik::Program>(std::make_shared<const image::CodeImage>(code));
    try {
        // The form that checks tags comes first, since it says more of what is wrong.
        const auto checked = outcome(program, true);
        fuzz::require(outcome(program, false) == checked);
        counts.countRun();
    } catch (const tamarik::Refusal&) {} // of imports that were changed
}

/// Some functions of the runtime, in one of their forms.
support::RandomCode::Functions someFunctions(const support::RandomNumber& next) {
    static const std::vector<std::string> names = natives().names();
    support::RandomCode::Functions some;
    for (int i = 0; i < kFunctions; ++i) {
        const std::string& name = names[next(static_cast<std::uint32_t>(names.size()))];
        const auto forms = natives().find(name);
        const tamarik::Native& form = forms[next(static_cast<std::uint32_t>(forms.size()))];
        image::Signature& signature = some[name] = {form.result, form.parameters};
        for (image::SlotType& parameter : signature.parameters)
            if (parameter.id == tamarik::kAnyId) parameter.id = 0;
    }
    return some;
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

void changeWord(std::vector<std::uint32_t>& words, const support::RandomNumber& next) {
    std::uint32_t& word = words[next(static_cast<std::uint32_t>(words.size()))];
    if (next(2) == 0) {
        word ^= 1U << next(32);
        return;
    }
    // An operand becomes a different slot.
    const std::uint32_t shift = 8 * (1 + next(3));
    word = (word & ~(0xFFU << shift)) | next(32) << shift;
}

struct Instruction {
    std::uint32_t* first;
    std::size_t words;
};

std::vector<Instruction> instructionsOf(image::CodeImage& code, const image::Procedure& procedure) {
    std::vector<Instruction> found;
    std::uint32_t* const end = code.code.data() + procedure.code + procedure.words;
    for (std::uint32_t* at = end - procedure.words; at != end; at += found.back().words)
        found.push_back({at, image::lengthOf(at, static_cast<std::size_t>(end - at))});
    return found;
}

/// Changes an instruction by one of the same procedure: takes over an operand, or all of it if both have the same length.
void changeInstruction(image::CodeImage& code, const support::RandomNumber& next) {
    const auto one = [&](const auto& list) { return list[next(static_cast<std::uint32_t>(list.size()))]; };
    const auto instructions = instructionsOf(code, one(code.procedures));
    const Instruction from = one(instructions), to = one(instructions);
    if (from.words == to.words && next(2) == 0) {
        std::copy_n(from.first, from.words, to.first);
        return;
    }
    const auto shift = [&] { return 8 * (1 + next(3)); };
    const std::uint32_t slot = *from.first >> shift() & 0xFF, place = shift();
    *to.first = (*to.first & ~(0xFFU << place)) | slot << place;
}

void change(image::CodeImage& code, const support::RandomNumber& next) {
    switch (next(8)) {
    case 0: return changeTable(code, next);
    case 1: return changeWord(code.code, next);
    default: return changeInstruction(code, next);
    }
}

/// What is written is read again as it was.
void checkRoundTrip(const image::CodeImage& code) {
    image::Image image;
    image.code = code;
    const auto bytes = image::encode(image);
    const auto decoded = image::decode(bytes);
    fuzz::require(decoded == image && image::encode(decoded) == bytes);
}

/// Numbers from the data, then random ones that depend on all of it.
class Numbers {
public:
    Numbers(const std::uint8_t* data, std::size_t size)
        : data_(data, size), random_(std::hash<std::string_view>()({reinterpret_cast<const char*>(data), size})) {}
    std::uint32_t operator()(std::uint32_t limit) {
        if (at_ + 2 > data_.size()) return static_cast<std::uint32_t>(random_() % limit);
        const std::uint32_t number = std::uint32_t{data_[at_]} << 8 | data_[at_ + 1];
        at_ += 2;
        return number % limit;
    }

private:
    std::span<const std::uint8_t> data_;
    std::size_t at_ = 0;
    std::mt19937_64 random_;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Numbers numbers(data, size);
    const support::RandomNumber next = [&](std::uint32_t limit) { return numbers(limit); };
    image::CodeImage code = support::RandomCode(next, someFunctions(next)).make();
    fuzz::require(!image::verify(code));
    ++counts.generated;
    checkRoundTrip(code);
    run(code);
    for (int i = 0; i < kChanges; ++i) {
        image::CodeImage changed = code;
        change(changed, next);
        if (changed == code) continue;
        ++counts.changed;
        if (image::verify(changed)) {
            ++counts.refused;
            continue;
        }
        code = std::move(changed);
        run(code);
    }
    checkRoundTrip(code);
    (void)image::disassemble(code, next(static_cast<std::uint32_t>(code.procedures.size())));
    return 0;
}
