#include "Components/Tamarik/late/default_members.h"
#include "Basic/runtime_error.h"
#include "Components/Tamarik/late/late_call.h"
#include "Components/Tamarik/values/rounding.h"
#include "Components/Tamarik/values/variant_conversion.h"
#include "Components/Tamarik/values/variant_operators.h"
#include "Components/Tamarik/values/variant_text.h"
#include "Components/Tamarik/vm/array_operations.h"
#include "Components/Tamarik/vm/slot_values.h"
#include <utility>

namespace tamarik {

namespace {

using image::Op;

/// Objects whose default member is an object again.
constexpr int kMostDefaults = 8;

/// Finds the values of operands one after the other, then does what the instruction does with simple values.
class ValueTask final : public Task {
public:
    ValueTask(const std::uint32_t* ip, Slot* base, int count) : ip_(ip), count_(count) {
        const image::Word word(*ip);
        const bool isFirst = static_cast<Op>(word.op) == Op::StoreVariantRef;
        operands_[0] = sharedOf(variantAt(base + (isFirst ? word.a : word.b)));
        if (count == 2) operands_[1] = sharedOf(variantAt(base + word.c));
    }

    bool step(Execution& m) override {
        for (; current_ < count_; ++current_, defaults_ = 0) {
            if (operands_[current_].kind != kObject) continue;
            requireObject(operands_[current_]);
            if (++defaults_ > kMostDefaults) throw basic::RuntimeError(basic::kPropertyOrMethodNotSupported);
            callDefault(m, operands_[current_]);
            return false;
        }
        complete(m, (m.frame - 1)->base);
        return true;
    }
    void returned(Execution& m, const Variant& result) override {
        tamarik::release(m.heap, std::exchange(operands_[current_], result));
    }
    void release(Heap& heap) override {
        for (Variant& operand : operands_) tamarik::release(heap, std::exchange(operand, {}));
    }

private:
    void complete(Execution& m, Slot* base) const {
        const image::Word word(*ip_);
        const Variant& v = operands_[0];
        Slot* const target = base + word.a;
        const auto type = static_cast<image::BaseType>(word.c);
        switch (static_cast<Op>(word.op)) {
        case Op::VariantToLong: target->number = longOf(v, type); break;
        case Op::VariantToFloat: target->fraction = fractionOf(v, type); break;
        case Op::VariantToCurrency: target->currency = currencyOf(v); break;
        case Op::VariantToText: setText(m.heap, *target, textOf(m.heap, v)); break;
        case Op::VariantValue: setVariant(m.heap, target, copyOf(m.heap, v)); break;
        case Op::StoreVariant: assign(m.heap, variantAt(target), v); break;
        case Op::StoreVariantRef: assign(m.heap, variantAt(base[word.b].pointer + word.c), v); break;
        case Op::IsTrue: target->number = isTrue(v) ? -1 : 0; break;
        case Op::OperateUnary: setVariant(m.heap, target, operateUnary(m.heap, operationOf(ip_[1]).op, v)); break;
        default: setVariant(m.heap, target, operate(m.heap, operationOf(ip_[1]), v, operands_[1]));
        }
    }

    const std::uint32_t* ip_;
    Variant operands_[2];
    int count_, current_ = 0, defaults_ = 0;
};

/// The default member of an object with the arguments of the instruction.
LateRequest itemRequest(Execution& m, const std::uint32_t* ip, const Variant& object) {
    const image::Word word(*ip);
    LateRequest request(m.heap);
    request.arguments.reserve(std::size_t{word.c} + 1);
    for (std::uint32_t i = 0; i < word.c; ++i)
        request.arguments.push_back(sharedOf(variantAt(m.frame->base + halfAt(ip + 1, i))));
    request.object = sharedOf(object);
    return request;
}

} // namespace

void withValues(Execution& m, const std::uint32_t* ip, int operands) {
    m.pushTask(std::make_unique<ValueTask>(ip, m.frame->base, operands));
}

void itemOfObject(Execution& m, const std::uint32_t* ip, const Variant& object) {
    callLate(m, itemRequest(m, ip, object), static_cast<std::uint8_t>(image::Word(*ip).a));
}

void storeItemOfObject(Execution& m, const std::uint32_t* ip, const Variant& object) {
    const image::Word word(*ip);
    LateRequest request = itemRequest(m, ip, object);
    request.use = image::LateUse::Let;
    request.arguments.push_back(sharedOf(variantAt(m.frame->base + word.a)));
    callLate(m, std::move(request), image::kNoSlot);
}

} // namespace tamarik
