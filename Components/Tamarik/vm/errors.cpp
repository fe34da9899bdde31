// Run-time errors: the search for a handler, and what is reported if there is none.
#include "Basic/runtime_error.h"
#include "Components/Tamarik/values/object.h"
#include "Components/Tamarik/vm/execution.h"
#include <algorithm>
#include <new>
#include <span>
#include <utility>

namespace tamarik {

namespace {

constexpr std::uint32_t kReturn = image::encode(image::Op::Return);

bool isBarrier(const Frame& of) {
    if (!of.rare) return false;
    const FrameKind kind = of.rare->kind;
    return kind == FrameKind::Entry || kind == FrameKind::Terminate || kind == FrameKind::Event;
}

bool takesErrors(const Frame& of) { return of.mode != ErrorMode::None && !(of.rare && of.rare->inHandler); }

std::uint32_t lineAt(const LoadedProcedure& procedure, const std::uint32_t* ip) {
    const auto at = static_cast<std::uint32_t>(ip - procedure.code);
    const auto& lines = procedure.info->lines;
    const auto after =
        std::upper_bound(lines.begin(), lines.end(), at,
                         [](std::uint32_t code, const image::LineStart& line) { return code < line.code; });
    return after == lines.begin() ? 0 : std::prev(after)->line;
}

} // namespace

void Execution::fail(int number) noexcept {
    noted_ = {};
    noted_.number = number;
}

void Execution::fail(const basic::RuntimeError& error) noexcept {
    try {
        if (const auto* raised = dynamic_cast<const RaisedError*>(&error))
            noted_ = raised->state;
        else
            noted_ = {error.Number, error.Description, {}, static_cast<std::int32_t>(error.LastDllError), {}, 0};
    } catch (const std::bad_alloc&) { fail(basic::kOutOfMemory); }
}

/// The name of the project, with that of the class if code of one failed.
std::string Execution::errorSource() const {
    const Frame* at = frame;
    while (at != frames_.get() && !at->procedure->info) --at;
    const auto* const info = at->procedure->info;
    const auto failed = std::ranges::find_if(
        program->classes, [&](const LoadedClass& each) { return info && each.info->module == info->module; });
    if (failed == program->classes.end()) return session.project;
    return session.project + "." + std::string(program->text(failed->info->name));
}

/// An error without a text has the standard one; without memory for that, none.
void Execution::describeNoted() noexcept {
    try {
        if (noted_.source.empty()) noted_.source = errorSource();
        if (noted_.description.empty()) noted_.description = basic::standardDescription(noted_.number);
    } catch (const std::bad_alloc&) {}
}

const std::uint32_t* Execution::statementAt(const Frame& of, const std::uint32_t* at, bool next) const {
    const auto& starts = of.procedure->info->statements;
    const auto offset = static_cast<std::uint32_t>(at - of.procedure->code);
    const auto after = std::upper_bound(starts.begin(), starts.end(), offset);
    if (next) return after == starts.end() ? &kReturn : of.procedure->code + *after;
    return after == starts.begin() ? of.procedure->code : of.procedure->code + *std::prev(after);
}

void Execution::unwind(Frame* to) {
    while (frame != to) leaveTop();
}

void Execution::enterHandler(Frame& of) {
    // Those frames that called store where they continue.
    const std::uint32_t* const at = &of == frame ? of.ip : of.ip - 1;
    // What can fail is done first.
    RareFrame* const state = of.mode == ErrorMode::GoTo ? &rare(of) : nullptr;
    unwind(&of);
    if (of.rare) of.rare->raising.reset();
    clearManaged(heap, of.base, of.procedure->temporaries);
    session.err = std::move(noted_);
    session.erl = static_cast<std::int32_t>(of.line);
    if (!state) {
        of.ip = statementAt(of, at, true);
        return;
    }
    state->inHandler = true;
    state->failedAt = at;
    of.ip = of.handler;
}

bool Execution::resume(bool next) {
    Frame& top = *frame;
    if (!top.rare || !top.rare->inHandler) return false;
    top.rare->inHandler = false;
    top.ip = statementAt(top, top.rare->failedAt, next);
    clearManaged(heap, top.base, top.procedure->temporaries);
    clearErr();
    return true;
}

bool Execution::goSub(const std::uint32_t* returnTo) {
    if (goSubs == kMostGoSubs) return false;
    rare(*frame).returns.push_back(returnTo);
    ++goSubs;
    return true;
}

const std::uint32_t* Execution::returnSub() {
    RareFrame* const state = frame->rare;
    if (!state || state->returns.empty()) return nullptr;
    const std::uint32_t* const to = state->returns.back();
    state->returns.pop_back();
    --goSubs;
    return to;
}

bool Execution::storeBack(const Frame& handler) {
    for (Frame* caller = frame - 1; caller >= &handler; --caller) {
        const bool storesBack =
            caller->procedure->info && image::Word(*caller->ip).op == std::uint8_t(image::Op::StoreBack);
        if (!storesBack) continue;
        RareFrame& state = rare(*caller); // what can fail is done first
        unwind(caller);
        state.raising = std::move(noted_);
        return true;
    }
    return false;
}

bool Execution::raiseAgain() noexcept {
    noted_ = std::move(*frame->rare->raising);
    return dispatchError();
}

bool Execution::dispatchError() noexcept {
    for (int attempts = 0; attempts < 2; ++attempts) {
        try {
            return findHandler();
        } catch (const std::bad_alloc&) { fail(basic::kOutOfMemory); }
    }
    failure.emplace().number = basic::kOutOfMemory;
    finish(RunState::Failed);
    return false;
}

bool Execution::findHandler() {
    // An error while arguments are stored back replaces that of the call.
    if (frame->rare) frame->rare->raising.reset();
    describeNoted();
    for (Frame* at = frame;; --at) {
        if (takesErrors(*at)) {
            if (!storeBack(*at)) enterHandler(*at);
            return true;
        }
        if (isBarrier(*at)) break;
    }
    describeFailure();
    finish(RunState::Failed);
    return false;
}

void Execution::describeFailure() { failure = {noted_.number, noted_.description, noted_.source, places()}; }

void Execution::stop(std::string_view reason) {
    failure.emplace().number = RunError::kStopped;
    finish(RunState::Failed);
    try {
        failure->text = reason;
        failure->callers = places();
    } catch (const std::bad_alloc&) {} // without the place
}

std::vector<RunError::Place> Execution::places() const {
    std::vector<RunError::Place> places;
    const auto& code = program->code();
    for (const Frame* at = frame; at != frames_.get(); --at) {
        if (!at->procedure->info) continue;
        const auto& info = *at->procedure->info;
        RunError::Place place;
        place.procedure = program->text(info.name);
        if (info.module < code.modules.size()) place.file = program->text(code.modules[info.module].file);
        place.line = lineAt(*at->procedure, at == frame ? at->ip : at->ip - 1);
        places.push_back(std::move(place));
        if (places.size() == kMostReportedCallers) break;
    }
    return places;
}

} // namespace tamarik
