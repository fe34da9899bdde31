#pragma once
// Proves that code cannot harm the process that runs it.
#include "Components/Image/code/code_image.h"
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace image {

/// Why code is refused.
struct Problem {
    std::uint32_t procedure = kNone; ///< kNone if it is not in the code of one
    std::uint32_t code = 0;          ///< the instruction, in words from the beginning of the procedure
    std::string text;                ///< a sentence without its full stop, which names the place
};

/// The types of a function of the runtime.
struct Signature {
    SlotType result;
    std::vector<SlotType> parameters;
    friend bool operator==(const Signature&, const Signature&) = default;
};
/// Returns what the runtime has under a name, or null.
using FindFunction = std::function<const Signature*(std::string_view name)>;

/// Returns the first problem of the code, or nothing if a machine may run it: then each instruction is known, whole and
/// inside its procedure, each slot holds only values of its type, and each number of something is one that exists. Takes time
/// in proportion to the code. Without a function to find them, imports are not compared with a runtime.
///
/// What a slot's type allows, any instruction may do with it: parameters may be written, every slot that is managed may be
/// emptied by taking its value, for zero is a value of every type, and temporaries are like other variables. A count of
/// 0 (operand C) is refused for indexes and bounds and means none for arguments and distances.
[[nodiscard]] std::optional<Problem> verify(const CodeImage& code, const FindFunction& runtime = {});

} // namespace image
