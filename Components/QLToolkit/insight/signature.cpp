#include "Components/QLToolkit/insight/signature.h"
#include "Basic/case_folding.h"
#include "Components/QLToolkit/insight/description.h"

namespace qltoolkit {

namespace {

bool isRaised(const TypedStatement& statement, const TypedCall& call) {
    return call.begin > 0 && statement.tokens()[call.begin - 1].is("RaiseEvent");
}

const Entity* eventOf(Snapshot& snapshot, const CodePlace& place, const TypedStatement& statement,
                      const TypedCall& call) {
    const auto& module = snapshot.program().modules[static_cast<std::size_t>(place.module)];
    return module.scope->events.find(snapshot.program().symbols.intern(statement.tokens()[call.begin].text));
}

std::size_t parameterOf(const Snapshot& snapshot, const Callable& callable, const TypedCall& call) {
    const auto count = callable.parameters.size();
    for (std::size_t at = 0; at < count && !call.named.empty(); ++at)
        if (basic::equalNoCase(snapshot.program().symbols.spelling(callable.parameters[at].name), call.named))
            return at;
    if (!call.named.empty()) return count;
    const bool isBeyond = call.argument >= count && count > 0 && callable.parameters[count - 1].paramArray;
    return isBeyond ? count - 1 : call.argument;
}

CallHelp helpOf(const Snapshot& snapshot, const CalledMember& called, const TypedCall& call) {
    CallHelp help;
    const auto present = parameterOf(snapshot, *called.callable, call);
    const auto parameters = parameterTexts(snapshot, called);
    help.text = spellingOf(snapshot, *called.entity) + "(";
    for (std::size_t at = 0; at < parameters.size(); ++at) {
        if (at > 0) help.text += ", ";
        if (at == present) help.parameterBegin = help.text.size();
        help.text += parameters[at];
        if (at == present) help.parameterEnd = help.text.size();
    }
    help.text += ")";
    const Type& result = called.callable->result;
    if (result.value != ValueType::None && called.entity->kind != EntityKind::Event)
        help.text += " As " + typeText(snapshot, result) + (result.isArray ? "()" : "");
    if (const auto* member = snapshot.describedMember(*called.entity)) help.help = member->help;
    if (present < parameters.size()) help.parameterType = called.callable->parameters[present].type;
    return help;
}

} // namespace

const Entity* entityOf(Snapshot& snapshot, const CodePlace& place, const TypedStatement& statement, std::size_t begin,
                       std::size_t end, bool isCalled) {
    const auto text = statement.textOf(begin, end);
    const Probe probe{snapshot, place, statement.lineBegin(),
                      isCalled ? "Call " + text + "()" : "If " + text + " Then End"};
    return probe.lastName();
}

std::optional<CallHelp> callAt(Snapshot& snapshot, const CodePlace& place, const TypedStatement& statement) {
    if (!snapshot.isWhole() || !snapshot.has(place.module)) return std::nullopt;
    for (const auto& call : statement.calls()) {
        const Entity* entity = isRaised(statement, call)
                                   ? eventOf(snapshot, place, statement, call)
                                   : entityOf(snapshot, place, statement, call.begin, call.end, true);
        if (!entity) continue;
        const auto called = calledMember(snapshot, *entity);
        if (called.callable) return helpOf(snapshot, called, call);
    }
    return std::nullopt;
}

std::optional<CallHelp> callAt(Snapshot& snapshot, const CodePlace& place) {
    const TypedStatement statement{place.before};
    if (statement.isInText()) return std::nullopt;
    return callAt(snapshot, place, statement);
}

} // namespace qltoolkit
