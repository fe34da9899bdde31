// Generated programs are accepted and survive a round trip, then they are changed in one place after the other; a change that
// the verifier refuses is undone. Each program that it accepts runs: slots hold what the table of instructions promises, and memory
// stays whole. Now and then both forms of the interpreter run it and agree.
//
// A long run, with a count of the programs each minute, is twice as fast without coverage of what it tests:
//   cmake --preset fuzz -B build/long -DCMAKE_CXX_FLAGS="-O2 -g1 -fno-omit-frame-pointer -fsanitize=address,undefined
//       -fno-sanitize-recover=all"
//   ASAN_OPTIONS=malloc_context_size=2 random_code_fuzz -seed=1 -entropic=0 -max_len=64 -len_control=0 -timeout=60 FOLDER
// FOLDER is for inputs that reach new code.
#include "Components/Image/image.h"
#include "Components/Image/listing/disassemble.h"
#include "Components/Tamarik/functions/standard_natives.h"
#include "Components/Tamarik/machine/run_without_window.h"
#include "fuzz/changed_code.h"
#include "fuzz/repaired_header.h"
#include "tests/support/random_code.h"
#include <cstdio>
#include <ctime>
#include <memory>
#include <random>
#include <span>
#include <string_view>

namespace {

constexpr std::int64_t kBudget = 2'000;
constexpr std::uint64_t kHeap = 1 << 16; ///< little, since most of the time would pass with the printing of long texts
constexpr std::size_t kMostPrinted = 10'000;
constexpr int kFunctions = 12;            ///< of the runtime, for each program
constexpr int kChanges = 200;             ///< that are tried
constexpr int kRunsForBoth = 4;           ///< one of them is in both forms
constexpr int kInstructionChanges = 12;   ///< for each change of a table
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

void run(const std::shared_ptr<const image::CodeImage>& code, bool inBothForms) {
    const auto program = std::make_shared<const tamarik::Program>(code);
    try {
        // The form that checks tags comes first, since it says more of what is wrong.
        const auto checked = outcome(program, true);
        if (inBothForms) fuzz::require(outcome(program, false) == checked);
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

bool isAccepted(const image::CodeImage& code) {
    ++counts.changed;
    if (!image::verify(code)) return true;
    ++counts.refused;
    return false;
}

/// These two return whether there is a different program, which the verifier accepts.
bool changeTable(image::CodeImage& code, const support::RandomNumber& next) {
    image::CodeImage changed = code;
    fuzz::CodeChange(changed, next).changeTable();
    if (changed == code || !isAccepted(changed)) return false;
    code = std::move(changed);
    return true;
}

bool changeInstructions(image::CodeImage& code, const support::RandomNumber& next) {
    const auto before = code.code; // much less than all of it
    fuzz::CodeChange(code, next).changeInstructions();
    if (code.code == before) return false;
    if (isAccepted(code)) return true;
    code.code = before;
    return false;
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
    const auto code = std::make_shared<image::CodeImage>(support::RandomCode(next, someFunctions(next)).make());
    fuzz::require(!image::verify(*code));
    ++counts.generated;
    checkRoundTrip(*code);
    run(code, true);
    for (int i = 0; i < kChanges; ++i)
        if (next(kInstructionChanges) == 0 ? changeTable(*code, next) : changeInstructions(*code, next))
            run(code, next(kRunsForBoth) == 0);
    checkRoundTrip(*code);
    (void)image::disassemble(*code, next(static_cast<std::uint32_t>(code->procedures.size())));
    return 0;
}
