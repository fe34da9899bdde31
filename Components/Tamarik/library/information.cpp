// Questions about values.
#include "Components/Tamarik/dates/date_text.h"
#include "Components/Tamarik/library/library_function.h"
#include "Components/Tamarik/library/library_natives.h"
#include "Components/Tamarik/text/values.h"
#include <algorithm>

namespace tamarik {

namespace {

template <VariantKind Kind>
bool isKind(Session&, const Variant& v) {
    return v.kind == Kind;
}
bool isArray(Session&, const Variant& v) { return v.isArray(); }
bool isMissing(Session&, const Variant& v) { return v.isMissing(); }
bool isDate(Session&, const Variant& v) { return v.kind == kDate || (v.kind == kString && IsDate(unitsOf(v.text))); }
bool isNumber(Session&, const Variant& v) {
    if (v.kind == kString) return IsNumeric(unitsOf(v.text));
    return v.kind == kEmpty || (isNumeric(v) && v.kind != kDate);
}

std::string_view nameOfKind(std::uint16_t kind) {
    switch (kind) {
    case kEmpty: return "Empty";
    case kNull: return "Null";
    case kInteger: return "Integer";
    case kLong: return "Long";
    case kSingle: return "Single";
    case kDouble: return "Double";
    case kCurrency: return "Currency";
    case kDate: return "Date";
    case kString: return "String";
    case kError: return "Error";
    case kBoolean: return "Boolean";
    case kVariant: return "Variant";
    case kDecimal: return "Decimal";
    case kByte: return "Byte";
    default: return "Object";
    }
}

TextBlock* typeName(Session& session, const Variant& v) {
    if (v.kind == kObject) return madeOfUtf8(session, v.object ? v.object->className() : "Nothing");
    if (!v.isArray()) return madeOfUtf8(session, nameOfKind(v.kind));
    return madeOfUtf8(session, std::string(nameOfKind(v.kind & ~kArray)) + "()");
}

std::int32_t varType(Session&, const Variant& v) { return v.kind; }

const Bounds& dimensionOf(const Variant& v, std::int32_t dimension) {
    if (!v.isArray()) throw basic::RuntimeError(basic::kTypeMismatch);
    if (!v.array || dimension < 1 || static_cast<std::size_t>(dimension) > v.array->bounds.size())
        throw basic::RuntimeError(basic::kSubscriptOutOfRange);
    return v.array->bounds[static_cast<std::size_t>(dimension) - 1];
}
std::int32_t lowerBound(Session&, const Variant& v, std::int32_t dimension) { return dimensionOf(v, dimension).lower; }
std::int32_t upperBound(Session&, const Variant& v, std::int32_t dimension) { return dimensionOf(v, dimension).upper; }

std::int32_t rgb(Session&, std::int32_t red, std::int32_t green, std::int32_t blue) {
    requireArgument(red >= 0 && green >= 0 && blue >= 0);
    constexpr std::int32_t kMost = 255;
    return std::min(red, kMost) | std::min(green, kMost) << 8 | std::min(blue, kMost) << 16;
}

std::int32_t oldColor(Session&, std::int32_t number) {
    constexpr std::int32_t kColors[]{0x000000, 0x800000, 0x008000, 0x808000, 0x000080, 0x800080, 0x008080, 0xC0C0C0,
                                     0x808080, 0xFF0000, 0x00FF00, 0xFFFF00, 0x0000FF, 0xFF00FF, 0x00FFFF, 0xFFFFFF};
    requireArgument(number >= 0 && number < static_cast<std::int32_t>(std::size(kColors)));
    return kColors[number];
}

} // namespace

void addInformation(Natives& natives) {
    natives.add("IsArray", native<&isArray>());
    natives.add("IsDate", native<&isDate>());
    natives.add("IsEmpty", native<&isKind<kEmpty>>());
    natives.add("IsError", native<&isKind<kError>>());
    natives.add("IsMissing", native<&isMissing>());
    natives.add("IsNull", native<&isKind<kNull>>());
    natives.add("IsNumeric", native<&isNumber>());
    natives.add("IsObject", native<&isKind<kObject>>());
    natives.add("TypeName", native<&typeName>());
    natives.add("VarType", native<&varType>());
    natives.add("LBound", native<&lowerBound>());
    natives.add("UBound", native<&upperBound>());
    natives.add("RGB", native<&rgb>());
    natives.add("QBColor", native<&oldColor>());
}

} // namespace tamarik
