#include "Components/Tamarik/vm/events.h"
#include "Basic/runtime_error.h"
#include "Components/Tamarik/vm/slot_values.h"
#include <algorithm>
#include <utility>

namespace tamarik {

namespace {

const image::EventSink* sinkOf(const Execution& m, const Object& handler, const Object& source, std::uint32_t field) {
    const auto& sinks = m.program->code().classes[handler.classNumber - 1].sinks;
    const auto found = std::find_if(sinks.begin(), sinks.end(), [&](const image::EventSink& sink) {
        return sink.field == field && sink.source == source.classNumber;
    });
    return found == sinks.end() ? nullptr : &*found;
}

std::uint32_t handlerOf(const image::EventSink& sink, std::uint32_t event) {
    for (const auto& handler : sink.handlers)
        if (handler.event == event) return handler.procedure;
    return image::kNone;
}

class EventTask final : public Task {
public:
    /// Finds who is connected, and copies the arguments of the instruction. If it fails, `release` is still needed.
    void prepare(Execution& m, Object* source, const std::uint32_t* ip) {
        event_ = ip[1];
        connections_ = m.connections.of(*source);
        retain(source_ = source);
        for (const Connection& connection : connections_) retain(connection.handler);
        const auto& types = m.program->code().classes[source->classNumber - 1].events[event_].parameters;
        for (const image::SlotType type : types) {
            const auto slot = static_cast<std::uint32_t>(arguments_.size());
            arguments_.resize(arguments_.size() + slotsOf(type));
            if (image::isManaged(type)) managed_.push_back({slot, managedKind(type)});
            kinds_.push_back(valueKindOf(type));
        }
        m.passArguments(arguments_.data(), ip + 2, image::Word(*ip).c, managed_);
    }

    bool step(Execution& m) override {
        while (next_ < connections_.size()) {
            const Connection& connection = connections_[next_++];
            // A handler before this one may have disconnected it.
            if (!m.connections.has(*source_, connection)) continue;
            const std::uint32_t procedure = handlerOf(*connection.sink, event_);
            if (procedure == image::kNone) continue;
            call(m, m.program->procedures[procedure], connection.handler);
            return false;
        }
        return true;
    }
    void returned(Execution&, const Variant&) override {}
    void release(Heap& heap) override {
        clearManaged(heap, arguments_.data(), managed_);
        for (const Connection& connection : connections_) tamarik::release(heap, connection.handler);
        connections_.clear();
        tamarik::release(heap, std::exchange(source_, nullptr));
    }

private:
    void call(Execution& m, const LoadedProcedure& procedure, Instance* handler) {
        Slot* slot = m.pushFrame(procedure, FrameKind::Event);
        retain(slot->object = handler);
        ++slot;
        const Slot* argument = arguments_.data();
        for (const ValueKind kind : kinds_) {
            copyValue(m.heap, slot, argument, kind);
            const int size = kind == ValueKind::Variant || kind == ValueKind::Reference ? 2 : 1;
            slot += size;
            argument += size;
        }
    }

    Object* source_ = nullptr;
    std::uint32_t event_ = 0;
    std::vector<Connection> connections_;
    std::size_t next_ = 0;
    std::vector<Slot> arguments_;
    std::vector<ManagedSlot> managed_;
    std::vector<ValueKind> kinds_;
};

} // namespace

void setSource(Execution& m, Object* source, Object* handler, std::uint32_t field) {
    if (!handler) throw basic::RuntimeError(basic::kObjectVariableNotSet);
    auto& instance = static_cast<Instance&>(*handler);
    Slot& slot = instance.fields()[field];
    if (slot.object)
        if (const auto* const sink = sinkOf(m, instance, *slot.object, field))
            m.connections.disconnect(*slot.object, {&instance, sink});
    if (source)
        if (const auto* const sink = sinkOf(m, instance, *source, field))
            m.connections.connect(*source, {&instance, sink});
    retain(source);
    setObject(m.heap, slot, source);
}

void raiseEvent(Execution& m, const std::uint32_t* ip) {
    Object* const source = m.frame->base[image::Word(*ip).b].object;
    if (!source) throw basic::RuntimeError(basic::kObjectVariableNotSet);
    auto task = std::make_unique<EventTask>();
    try {
        task->prepare(m, source, ip);
    } catch (...) {
        task->release(m.heap);
        throw;
    }
    m.pushTask(std::move(task));
}

} // namespace tamarik
