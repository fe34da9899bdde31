#include "Components/Tamarik/late/each.h"
#include "Basic/runtime_error.h"
#include "Components/Tamarik/late/late_call.h"
#include "Components/Tamarik/objects/walk.h"
#include "Components/Tamarik/vm/slot_values.h"
#include <utility>

namespace tamarik {

namespace {

/// Calls the procedure of the class that returns the walk.
class EnumeratorTask final : public Task {
public:
    explicit EnumeratorTask(Object* object) : object_(object) { retain(object); }

    bool step(Execution& m) override {
        if (std::exchange(isCalled_, true)) {
            if (result_.kind != kObject || !dynamic_cast<Walk*>(result_.object))
                throw basic::RuntimeError(basic::kPropertyOrMethodNotSupported);
            setObject(m.heap, (m.frame - 1)->base[m.frame->result], std::exchange(result_, {}).object);
            return true;
        }
        const std::uint32_t procedure = m.program->code().classes[object_->classNumber - 1].enumerator;
        Slot* const base = m.pushFrame(m.program->procedures[procedure], FrameKind::TaskCall);
        retain(base[0].object = object_);
        return false;
    }
    void returned(Execution&, const Variant& result) override { result_ = result; }
    void release(Heap& heap) override {
        tamarik::release(heap, std::exchange(result_, {}));
        tamarik::release(heap, std::exchange(object_, nullptr));
    }

private:
    Object* object_;
    Variant result_;
    bool isCalled_ = false;
};

} // namespace

Object* walkOverArray(Heap& heap, ArrayBlock* array) {
    if (!array || array->bounds.empty()) throw basic::RuntimeError(basic::kForLoopNotInitialized);
    return makeObject<ArrayWalk>(heap, *array);
}

bool isWalkedByCode(const Execution& m, const Variant& v) {
    return v.kind == kObject && v.object && v.object->classNumber != 0 &&
           m.program->code().classes[v.object->classNumber - 1].enumerator != image::kNone;
}

Object* walkOver(Execution& m, const Variant& v) {
    if (v.isArray()) return walkOverArray(m.heap, v.array);
    if (v.kind != kObject) throw basic::RuntimeError(basic::kPropertyLetNotDefined);
    requireObject(v);
    if (v.object->classNumber != 0) throw basic::RuntimeError(basic::kPropertyOrMethodNotSupported);
    return static_cast<LibraryObject*>(v.object)->walk(m.heap);
}

void beginEach(Execution& m, const Variant& v, std::uint32_t target) {
    m.pushTask(std::make_unique<EnumeratorTask>(v.object), static_cast<std::uint8_t>(target));
}

bool nextEach(Execution& m, Object* walk, Slot* target) {
    auto* const source = dynamic_cast<Walk*>(walk);
    if (!source) throw basic::RuntimeError(basic::kForLoopNotInitialized);
    Variant element;
    if (!source->next(m.heap, element)) return false;
    setVariant(m.heap, target, element);
    return true;
}

} // namespace tamarik
