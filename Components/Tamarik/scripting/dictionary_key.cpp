#include "Components/Tamarik/scripting/dictionary_key.h"
#include "Basic/runtime_error.h"
#include "Components/Tamarik/values/folding.h"
#include "Components/Tamarik/values/variant_conversion.h"
#include "Components/Tamarik/values/variant_operators.h"
#include <bit>

namespace tamarik {

namespace {

/// Whether a Double may not have all digits of the number.
bool isLong(const Variant& key) { return key.kind == kCurrency || key.kind == kDecimal; }

std::uint32_t mixed(std::uint64_t bits) {
    bits = (bits ^ bits >> 33) * 0xFF51AFD7ED558CCDU;
    bits = (bits ^ bits >> 33) * 0xC4CEB9FE1A85EC53U;
    return static_cast<std::uint32_t>(bits ^ bits >> 32);
}

} // namespace

std::uint32_t keyHash(const Variant& key) {
    if (key.isArray() || key.kind == kRecord) throw basic::RuntimeError(basic::kInvalidProcedureCall);
    if (key.kind == kString) return foldedHash(key.text);
    if (key.kind == kObject) return mixed(reinterpret_cast<std::uintptr_t>(key.object));
    // A sum with 0 makes 0 of -0.
    if (isNumeric(key)) return mixed(std::bit_cast<std::uint64_t>(fractionOf(key, image::BaseType::Double) + 0.0));
    return mixed(std::uint64_t{key.kind} << 32 | (key.kind == kError ? static_cast<std::uint32_t>(key.number) : 0));
}

bool equalKeys(Heap& heap, const Variant& a, const Variant& b, bool ignoresCase) {
    if (isNumeric(a) && isNumeric(b))
        return fractionOf(a, image::BaseType::Double) == fractionOf(b, image::BaseType::Double) &&
               (!isLong(a) || !isLong(b) || compareVariants(heap, {}, a, b) == 0);
    if (a.kind != b.kind) return false;
    switch (a.kind) {
    case kString: return ignoresCase ? equalFolded(unitsOf(a.text), unitsOf(b.text)) : compare(a.text, b.text) == 0;
    case kObject: return a.object == b.object;
    case kError: return a.number == b.number;
    default: return true; // Empty and Null have one value each
    }
}

} // namespace tamarik
