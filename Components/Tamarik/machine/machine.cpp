#include "Components/Tamarik/machine/machine.h"
#include "Components/Tamarik/machine/interpreter.h"
#include "Components/Tamarik/values/object.h"
#include "Components/Tamarik/vm/wait_task.h"
#include <algorithm>
#include <utility>

namespace tamarik {

namespace {

BoundNative bound(const Native& native) {
    BoundNative result{native.call, valueKindOf(native.result), 0, {}};
    for (const image::SlotType type : native.parameters) {
        if (isManaged(type)) result.managed.push_back({result.slots, managedKind(type)});
        result.slots += slotsOf(type);
    }
    return result;
}

} // namespace

Machine::Machine(std::shared_ptr<const Program> program, const Natives& natives, MachineOptions options)
    : options_(std::move(options)),
      session_(std::make_unique<Session>(options_.heapLimit, options_.output, program->code().codePage)) {
    session_->project = program->project();
    session_->random = Random(options_.seed);
    session_->surroundings = options_.surroundings;
    session_->classes = natives.classes();
    execution_ = std::make_unique<Execution>(std::move(program), *session_, options_.stackSlots);
    bind(natives);
    session_->heap.failAllocation(options_.failingAllocation);
}

Machine::~Machine() = default;

void Machine::bind(const Natives& natives) {
    const Program& program = *execution_->program;
    execution_->libraryClasses = natives.classes();
    for (const image::Import& import : program.code().imports) {
        const std::string name(program.text(import.name));
        if (natives.find(name).empty()) throw Refusal("The runtime does not have the function " + name + ".");
        const Native* const native = natives.find(name, import.result, import.parameters);
        if (!native) throw Refusal("The runtime has the function " + name + " with other types.");
        execution_->imports.push_back(bound(*native));
    }
}

void Machine::start() { start(execution_->program->code().start); }

void Machine::start(std::uint32_t procedure) {
    auto& toRun = execution_->toRun;
    toRun.clear();
    if (procedure != image::kNone) toRun.push_back(procedure);
    const auto& modules = execution_->program->code().modules;
    for (auto module = modules.rbegin(); module != modules.rend(); ++module)
        if (module->prepare != image::kNone) toRun.push_back(module->prepare);
}

RunState Machine::run(std::int64_t budget) {
    Execution& m = *execution_;
    if (m.state != RunState::StoppedByBudget && m.state != RunState::Running) return m.state;
    m.state = RunState::Running;
    m.budget = budget;
    if (options_.usesSwitch)
        interpretBySwitch(m);
    else
        interpretByGoto(m);
    return m.state;
}

std::int64_t Machine::budgetLeft() const { return std::max<std::int64_t>(execution_->budget, 0); }

const Wait& Machine::wait() const { return execution_->waiting->wait(); }

void Machine::answer(Answer answer) {
    std::exchange(execution_->waiting, nullptr)->answer(std::move(answer));
    execution_->finish(RunState::Running);
}

const std::optional<RunError>& Machine::error() const { return execution_->failure; }

std::vector<RunError::Place> Machine::callers() const { return execution_->places(); }

std::vector<std::string> Machine::livingObjects() const {
    std::vector<std::string> names;
    for (const auto* object = static_cast<const Object*>(session_->heap.living); object; object = object->older)
        names.emplace_back(object->className());
    std::reverse(names.begin(), names.end());
    return names;
}

Session& Machine::session() { return *session_; }

std::span<const Slot> Machine::globals() const { return execution_->globals; }

} // namespace tamarik
