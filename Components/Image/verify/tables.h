#pragma once
// What all checks of an image share.
#include "Components/Image/code/code_names.h"
#include "Components/Image/code/record_shapes.h"
#include "Components/Image/verify/verify.h"
#include <string>
#include <vector>

namespace image {

// Further limits, none of which a program reaches.
inline constexpr std::uint32_t kMostParameters = 255;
inline constexpr std::uint32_t kMostFieldSlots = 65535; ///< of an object or record
inline constexpr std::uint32_t kMostGlobalSlots = 1 << 24;
inline constexpr std::uint32_t kLongestFixedText = 65535;
inline constexpr std::int64_t kLargestArray = std::int64_t{1} << 30; ///< bytes

/// Whether a slot of one type may take a value of another: only objects of a class have a more general type.
[[nodiscard]] constexpr bool takes(SlotType to, SlotType from) {
    if (to == from) return true;
    const auto isObject = [](SlotType type) { return type.form == TypeForm::Value && type.base == BaseType::Object; };
    return isObject(to) && isObject(from) && to.id == 0;
}

/// Whether a reference of a type may refer to something. Slots do not show whether a whole number is an Integer, and hold
/// it in the same way.
[[nodiscard]] constexpr bool mayRefer(SlotType reference, SlotType target) {
    if (reference.id != target.id) return false;
    if (target.form == TypeForm::Array)
        return reference.form == TypeForm::ArrayReference && reference.base == target.base;
    return reference.form == TypeForm::Reference && target.form == TypeForm::Value &&
           slotBase(reference.base) == slotBase(target.base);
}

/// The code, the places of its variables, and the types of its results.
class Tables {
public:
    explicit Tables(const CodeImage& image);

    const CodeImage& code;
    RecordShapes shapes;
    SlotSequence globals;
    std::vector<SlotSequence> fields; ///< of each class, the first of class 1
    std::vector<SlotType> results;    ///< of each procedure; None if it has none

    [[nodiscard]] std::string describe(SlotType type) const { return image::describe(code, type); }
    /// Whether a field of a class is WithEvents.
    [[nodiscard]] bool isSource(std::uint32_t classNumber, std::uint32_t field) const;

private:
    std::vector<std::vector<std::uint32_t>> sources_; ///< the WithEvents fields of each class, sorted
    /// Half if there is nothing that a result can be in.
    [[nodiscard]] SlotType resultIn(const SlotSequence& variables, std::uint32_t slot) const;
};

/// Raises a problem that is not in the code of a procedure.
[[noreturn]] inline void refuse(std::string text) { throw Problem{kNone, 0, std::move(text)}; }

} // namespace image
