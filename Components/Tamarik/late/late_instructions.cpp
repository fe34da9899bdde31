// CallLate and CallByName: what the instructions name becomes a request.
#include "Basic/runtime_error.h"
#include "Components/Tamarik/late/late_call.h"
#include "Components/Tamarik/objects/library_object.h"
#include "Components/Tamarik/values/encoding.h"
#include "Components/Tamarik/values/held.h"
#include "Components/Tamarik/values/variant_conversion.h"
#include "Components/Tamarik/values/variant_text.h"
#include "Components/Tamarik/vm/array_operations.h"
#include "Components/Tamarik/vm/slot_values.h"
#include <array>
#include <cstdint>
#include <utility>

namespace tamarik {

using image::LateUse;

namespace {

const FoundMember& foundAt(Execution& m, const std::uint32_t* ip, const LibraryObject& object) {
    CallSite& site = m.callSites[reinterpret_cast<std::uintptr_t>(ip) / sizeof *ip % kCallSites];
    const LibraryMember* const members = object.members().data();
    if (site.ip == ip && site.members == members) return site.found;
    const std::string_view name = ip[1] == image::kNone ? object.defaultMember() : m.program->text(ip[1]);
    if (name.empty()) throw basic::RuntimeError(basic::kPropertyOrMethodNotSupported);
    site = {ip, members, findMember(object, name, static_cast<LateUse>(ip[2] & 0xFF))};
    return site.found;
}

} // namespace

bool callLibrary(Execution& m, const std::uint32_t* ip) {
    const image::Word word(*ip);
    Slot* const base = m.frame->base;
    const Variant& target = variantAt(base + word.b);
    if (target.kind != kObject || !target.object || target.object->classNumber != 0 || ip[2] >> 8 != 0) return false;
    auto& object = static_cast<LibraryObject&>(*target.object);
    std::array<const Variant*, 255> arguments;
    for (std::uint32_t i = 0; i < word.c; ++i) arguments[i] = &variantAt(base + halfAt(ip + 3, i));
    if (word.c != 0 && assignsObject(static_cast<LateUse>(ip[2] & 0xFF), *arguments[word.c - 1])) return false;
    const Variant result = callFound(m.session, object, foundAt(m, ip, object), {arguments.data(), word.c});
    if (word.a == image::kNoSlot)
        release(m.heap, result);
    else
        setVariant(m.heap, base + word.a, result);
    return true;
}

namespace {

/// Copies of the Variants in so many slots, which remain the variables that ByRef parameters refer to.
void takeArguments(Execution& m, LateRequest& request, const std::uint32_t* slots, std::uint32_t first,
                   std::uint32_t end) {
    Slot* const base = m.frame->base;
    request.arguments.reserve(end - first);
    for (std::uint32_t i = first; i < end; ++i) {
        request.variables.push_back(base + halfAt(slots, i));
        request.arguments.push_back(copyOf(m.heap, variantAt(request.variables.back())));
    }
}

LateUse useOf(std::int32_t callType) {
    switch (callType) {
    case 1: return LateUse::Call;
    case 2:
    case 3: return LateUse::Get; // also as a method
    case 4: return LateUse::Let;
    case 8: return LateUse::Set;
    default: throw basic::RuntimeError(basic::kInvalidProcedureCall);
    }
}

} // namespace

void callLate(Execution& m, const std::uint32_t* ip) {
    const image::Word word(*ip);
    LateRequest request(m.heap);
    request.name = ip[1];
    request.use = static_cast<LateUse>(ip[2] & 0xFF);
    const std::uint32_t named = ip[2] >> 8;
    request.named.assign(ip + 3, ip + 3 + named);
    takeArguments(m, request, ip + 3 + named, 0, word.c);
    request.object = sharedOf(variantAt(m.frame->base + word.b));
    callLate(m, std::move(request), word.a);
}

void callByName(Execution& m, const std::uint32_t* ip) {
    const image::Word word(*ip);
    Slot* const base = m.frame->base;
    const auto given = [&](std::uint32_t i) -> const Variant& { return variantAt(base + halfAt(ip + 1, i)); };
    const std::int32_t callType = longOf(given(1), image::BaseType::Long);
    LateRequest request(m.heap);
    request.use = useOf(callType);
    request.isExact = callType != 3;
    const HeldText name(m.heap, textOf(m.heap, given(0)));
    request.givenName = toUtf8(unitsOf(name));
    if (request.givenName.empty()) throw basic::RuntimeError(basic::kPropertyOrMethodNotSupported);
    if (request.assigns() && word.c == 2) throw basic::RuntimeError(basic::kWrongNumberOfArguments);
    takeArguments(m, request, ip + 1, 2, word.c);
    request.object = sharedOf(variantAt(base + word.b));
    callLate(m, std::move(request), word.a);
}

} // namespace tamarik
