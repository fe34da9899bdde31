#include "Components/Tamarik/vm/class_objects.h"
#include "Basic/case_folding.h"
#include "Basic/runtime_error.h"
#include "Components/Tamarik/vm/slot_values.h"
#include <algorithm>
#include <utility>

namespace tamarik {

namespace {

const image::ClassInfo& infoOf(const Execution& m, std::uint32_t classNumber) {
    return m.program->code().classes[classNumber - 1];
}

const image::Implementation* implementation(const Execution& m, const Object& object, std::uint32_t interface) {
    if (object.classNumber == 0) return nullptr;
    const auto& all = infoOf(m, object.classNumber).implementations;
    const auto found = std::find_if(all.begin(), all.end(),
                                    [&](const image::Implementation& each) { return each.interface == interface; });
    return found == all.end() ? nullptr : &*found;
}

/// Runs what prepares the fields, then Initialize, then stores the object.
class NewTask final : public Task {
public:
    void own(Instance* instance) { instance_ = instance; }

    bool step(Execution& m) override {
        const image::ClassInfo& info = infoOf(m, instance_->classNumber);
        while (stage_ < 2) {
            const std::uint32_t next = stage_++ == 0 ? info.prepare : info.initialize;
            if (next == image::kNone) continue;
            Slot* const base = m.pushFrame(m.program->procedures[next], FrameKind::TaskCall);
            retain(base[0].object = instance_);
            return false;
        }
        setObject(m.heap, (m.frame - 1)->base[m.frame->result], std::exchange(instance_, nullptr));
        return true;
    }
    void returned(Execution& m, const Variant& result) override { tamarik::release(m.heap, result); }
    void release(Heap& heap) override {
        // An object that was not initialized is not terminated.
        if (instance_) instance_->state = Counted::State::Terminated;
        tamarik::release(heap, std::exchange(instance_, nullptr));
    }

private:
    Instance* instance_ = nullptr;
    int stage_ = 0;
};

} // namespace

void newObject(Execution& m, std::uint32_t classNumber, std::uint32_t target) {
    const LoadedClass& loaded = m.program->classes[classNumber - 1];
    const auto make = [&] {
        return makeInstance(m.heap, classNumber, m.program->text(loaded.info->name), loaded.fields);
    };
    if (loaded.info->prepare == image::kNone && loaded.info->initialize == image::kNone)
        return setObject(m.heap, m.frame->base[target], make());
    auto task = std::make_unique<NewTask>();
    task->own(make());
    m.pushTask(std::move(task), static_cast<std::uint8_t>(target));
}

Object* newLibraryObject(Execution& m, std::string_view name) {
    for (const auto& [known, make] : m.libraryClasses)
        if (basic::equalNoCase(known, name)) return make(m.session);
    throw basic::RuntimeError(basic::kCantCreateObject);
}

bool isOfClass(const Execution& m, const Object& object, std::uint32_t classNumber) {
    return object.classNumber == classNumber || implementation(m, object, classNumber) != nullptr;
}

bool isOfLibraryClass(const Execution& m, const Object& object, std::uint32_t name) {
    const std::string_view wanted = m.program->text(name);
    // Every object has this interface; procedures for For Each return it.
    if (basic::equalNoCase(wanted, "IUnknown")) return true;
    return object.classNumber == 0 && basic::equalNoCase(object.className(), wanted);
}

void requireClass(const Execution& m, const Object* object, std::uint32_t classNumber) {
    if (object && !isOfClass(m, *object, classNumber)) throw basic::RuntimeError(basic::kTypeMismatch);
}

void requireExactClass(const Object* object, std::uint32_t classNumber) {
    if (object && object->classNumber != classNumber) throw basic::RuntimeError(basic::kTypeMismatch);
}

void requireLibraryClass(const Execution& m, const Object* object, std::uint32_t name) {
    if (object && !isOfLibraryClass(m, *object, name)) throw basic::RuntimeError(basic::kTypeMismatch);
}

const LoadedProcedure* implementationOf(const Execution& m, const Object* object, std::uint32_t interfaceAndMember) {
    if (!object) throw basic::RuntimeError(basic::kObjectVariableNotSet);
    const std::uint32_t interface = interfaceAndMember & 0xFFFF, member = interfaceAndMember >> 16;
    std::uint32_t procedure = image::kNone;
    if (const auto* const found = implementation(m, *object, interface)) {
        if (member < found->procedures.size()) procedure = found->procedures[member];
    } else if (object->classNumber == interface && member < infoOf(m, interface).members.size()) {
        const image::ClassMember& own = infoOf(m, interface).members[member];
        if (own.use != image::MemberUse::Field) procedure = own.target;
    }
    if (procedure == image::kNone) throw basic::RuntimeError(basic::kPropertyOrMethodNotSupported);
    return &m.program->procedures[procedure];
}

} // namespace tamarik
