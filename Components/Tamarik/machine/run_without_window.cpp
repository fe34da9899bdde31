#include "Components/Tamarik/machine/run_without_window.h"

namespace tamarik {

namespace {

void show(const Output& output, const Wait& wait) {
    if (!output.error || wait.kind == Wait::Kind::Events) return;
    output.error((wait.title.empty() ? "" : wait.title + ": ") + wait.text + "\n");
}

Answer answerTo(const Output& output, const Wait& wait) {
    Answer answer{wait.usualButton, {}};
    if (wait.kind != Wait::Kind::Input) return answer;
    std::string line;
    if (output.inputLine && output.inputLine(line)) answer.text = line.empty() ? wait.usual : line;
    return answer;
}

} // namespace

RunState runWithoutWindow(Machine& machine, std::int64_t budget) {
    auto state = machine.run(budget);
    while (state == RunState::Waiting) {
        const Output& output = machine.session().output;
        show(output, machine.wait());
        machine.answer(answerTo(output, machine.wait()));
        state = machine.run(machine.budgetLeft());
    }
    return state;
}

} // namespace tamarik
