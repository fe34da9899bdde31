#include "Components/Tamarik/machine/run_without_window.h"

namespace tamarik {

namespace {

void show(const Output& output, const Wait& wait) {
    const bool isQuestion = wait.kind == Wait::Kind::Message || wait.kind == Wait::Kind::Input;
    if (!output.error || !isQuestion) return;
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

RunState runWithoutWindow(Machine& machine, std::int64_t budget, const Pause& pause) {
    auto state = machine.run(budget);
    while (state == RunState::Waiting) {
        const Output& output = machine.session().output;
        const Wait& wait = machine.wait();
        show(output, wait);
        if (wait.kind == Wait::Kind::Pause) pause(wait.milliseconds);
        machine.answer(answerTo(output, wait));
        state = machine.run(machine.budgetLeft());
    }
    return state;
}

} // namespace tamarik
