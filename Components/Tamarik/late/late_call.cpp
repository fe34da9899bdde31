#include "Components/Tamarik/late/late_call.h"
#include "Basic/runtime_error.h"
#include "Components/Tamarik/late/late_arguments.h"
#include "Components/Tamarik/objects/library_object.h"
#include "Components/Tamarik/vm/array_operations.h"
#include "Components/Tamarik/vm/slot_values.h"
#include "Components/Tamarik/vm/slot_variants.h"
#include "Components/Tamarik/vm/variant_operations.h"
#include <new>
#include <utility>

namespace tamarik {

namespace {

using image::ClassMember;
using image::LateUse;
using image::MemberUse;

/// Objects whose default member is an object again.
constexpr int kDeepestDefaults = 8;

class LateCallTask final : public Task {
public:
    explicit LateCallTask(LateRequest request) : request_(std::move(request)) {}

    bool step(Execution& m) override {
        for (;;) {
            if (isDone_) {
                m.deliver(std::exchange(result_, {}));
                return true;
            }
            if (!advance(m)) return false;
        }
    }

    void returned(Execution& m, const Variant& result) override {
        if (waitsFor_ != nullptr) {
            Variant& argument = *std::exchange(waitsFor_, nullptr);
            tamarik::release(m.heap, std::exchange(argument, result));
            return;
        }
        result_ = result;
        isCalling_ = false;
        arguments_.writeBack(m.heap);
        arguments_.release(m.heap);
        continueWith(m, nextArguments_);
    }

    void release(Heap& heap) override {
        if (isCalling_) writeBackOfFailed(heap);
        tamarik::release(heap, std::exchange(result_, {}));
        request_.release();
        arguments_.release(heap);
    }

private:
    /// An error must still reach its handler, so one in here counts as no assignment.
    void writeBackOfFailed(Heap& heap) {
        try {
            arguments_.writeBack(heap);
        } catch (const std::bad_alloc&) {}
    }

    /// One step; false if code was called.
    bool advance(Execution& m) {
        requireObject(request_.object);
        Object& object = *request_.object.object;
        if (object.classNumber == 0) return callLibrary(m, static_cast<LibraryObject&>(object));
        if (const ClassMember* const member = memberFor(m, request_, request_.use))
            return callMemberOf(m, static_cast<Instance&>(object), *member);
        // A property that returns an object: the value is assigned to that object's default member.
        const ClassMember* const getter = memberFor(m, request_, LateUse::Get);
        const bool isIndexed = request_.arguments.size() > 1;
        if (!request_.assigns() || !getter || getter->use == MemberUse::Method ||
            !(isIndexed || isOfDefault(getter->result)))
            throw basic::RuntimeError(basic::kPropertyOrMethodNotSupported);
        return callProcedure(m, static_cast<Instance&>(object), *getter, 0);
    }

    /// Whether a value that is assigned to an object is one for its default member.
    [[nodiscard]] bool isOfDefault(image::BaseType member) const {
        return request_.use == LateUse::Let && member == image::BaseType::Object;
    }

    bool callLibrary(Execution& m, LibraryObject& object) {
        if (!request_.arguments.empty() && assignsObject(request_.use, request_.arguments.back()))
            return resolve(m, request_.arguments.back());
        const std::string_view given = request_.nameIn(*m.program),
                               name = given.empty() ? object.defaultMember() : given;
        if (name.empty()) throw basic::RuntimeError(basic::kPropertyOrMethodNotSupported);
        std::vector<const Variant*> positional;
        std::vector<NamedArgument> named;
        const std::size_t firstNamed = request_.firstNamed();
        for (std::size_t i = 0; i < request_.arguments.size(); ++i) {
            if (i < firstNamed || i - firstNamed == request_.named.size())
                positional.push_back(&request_.arguments[i]);
            else
                named.push_back({m.program->text(request_.named[i - firstNamed]), &request_.arguments[i]});
        }
        result_ = callMember(m.session, object, name, request_.use, positional, named);
        isDone_ = true;
        return true;
    }

    bool callMemberOf(Execution& m, Instance& object, const ClassMember& member) {
        const bool takesNone = member.parameters.empty() || member.use == MemberUse::Field;
        if (takesNone && !request_.named.empty()) throw basic::RuntimeError(basic::kNamedArgumentNotFound);
        if (member.use == MemberUse::Field) return useField(m, object, member);
        // A property without parameters: the arguments are for what it returns.
        const bool isIndexed = member.use == MemberUse::Get && takesNone && !request_.arguments.empty();
        if (!isIndexed) arrangeArguments(*m.program, request_, member);
        return callProcedure(m, object, member, isIndexed ? 0 : request_.arguments.size());
    }

    bool useField(Execution& m, Instance& object, const ClassMember& member) {
        Slot* const field = object.fields() + member.target;
        const image::SlotType type = typeOfField(m, object, member);
        if (request_.assigns() && request_.arguments.size() == 1 && !isOfDefault(member.result)) {
            if (Variant* const unresolved = valueNeeded(request_.arguments[0], type)) return resolve(m, *unresolved);
            storeInSlot(m, field, type, member.result, request_.arguments[0]);
            isDone_ = true;
            return true;
        }
        result_ = copyOfSlot(m.heap, field, type, member.result);
        continueWith(m, 0);
        return true;
    }

    static image::SlotType typeOfField(const Execution& m, const Object& object, const ClassMember& member) {
        std::uint32_t slot = 0;
        for (const image::SlotVariable& field : m.program->code().classes[object.classNumber - 1].fields) {
            if (slot == member.target) return field.type;
            slot += field.type.base == image::BaseType::Record && field.type.form == image::TypeForm::Value
                        ? m.program->records[field.type.id].slots
                        : slotsOf(field.type);
        }
        throw basic::RuntimeError(basic::kPropertyOrMethodNotSupported);
    }

    bool callProcedure(Execution& m, Instance& object, const ClassMember& member, std::size_t count) {
        const LoadedProcedure& procedure = m.program->procedures[member.target];
        std::span<Variant> arguments(request_.arguments.data(), count);
        if (Variant* const unresolved = arguments_.firstWithoutValue(procedure, arguments))
            return resolve(m, *unresolved);
        arguments_.prepare(m, procedure, member, arguments, request_.variables);
        nextArguments_ = count;
        Slot* const base = m.pushFrame(procedure, FrameKind::TaskCall);
        retain(base[0].object = &object);
        arguments_.moveTo(m.heap, base + 1);
        isCalling_ = true;
        return false;
    }

    bool resolve(Execution& m, Variant& argument) {
        waitsFor_ = &argument;
        callDefault(m, argument);
        return false;
    }

    /// The result is final, or the remaining arguments select an element of it.
    void continueWith(Execution& m, std::size_t used) {
        if (used >= request_.arguments.size()) {
            isDone_ = true;
            return;
        }
        request_.arguments.erase(request_.arguments.begin(),
                                 request_.arguments.begin() + static_cast<std::ptrdiff_t>(used));
        if (result_.isArray()) return useElement(m);
        if (++defaults_ > kDeepestDefaults) throw basic::RuntimeError(basic::kPropertyOrMethodNotSupported);
        tamarik::release(m.heap, std::exchange(request_.object, std::exchange(result_, {})));
        request_.name = image::kNone;
        request_.givenName.clear();
        request_.variables.clear();
    }

    void useElement(Execution& m) {
        const std::span<const Variant> arguments(request_.arguments);
        Variant element;
        if (request_.assigns())
            storeElementWith(m.heap, result_, arguments.first(arguments.size() - 1), arguments.back());
        else
            element = elementWith(m.heap, result_, arguments);
        tamarik::release(m.heap, std::exchange(result_, element));
        isDone_ = true;
    }

    LateRequest request_;
    LateArguments arguments_;
    Variant result_;
    Variant* waitsFor_ = nullptr;
    std::size_t nextArguments_ = 0;
    int defaults_ = 0;
    bool isCalling_ = false; ///< the member
    bool isDone_ = false;
};

} // namespace

void requireObject(const Variant& v) {
    if (v.kind != kObject) throw basic::RuntimeError(basic::kObjectRequired);
    if (!v.object) throw basic::RuntimeError(basic::kObjectVariableNotSet);
}

void callLate(Execution& m, LateRequest request, std::uint8_t result) {
    m.pushTask(std::make_unique<LateCallTask>(std::move(request)), result);
}

void callDefault(Execution& m, const Variant& object) {
    LateRequest request(m.heap);
    request.object = sharedOf(object);
    callLate(m, std::move(request), image::kNoSlot);
}

} // namespace tamarik
