#pragma once
// The functions of the language's library that the generator of code treats in their own way.
#include "Components/QLToolkit/names/symbol_map.h"
#include "Components/QLToolkit/types/type.h"
#include <string_view>

namespace qltoolkit {

enum class Builtin : std::uint8_t {
    None, ///< a function of the runtime
    Convert,
    LowerBound,
    UpperBound,
    Length,
    LengthInBytes,
    Root,
    Absolute,
    Int,
    Fix,
    CallByName,
    VarPtr,
    Array,
    CreateObject
};

struct LibraryFunction {
    std::string_view name;
    Builtin builtin = Builtin::None;
    bool takesObjects = false;        ///< it is given objects themselves, not the values of their default members
    ValueType type = ValueType::None; ///< Convert: of the result
};

/// Finds them by name.
class LibraryFunctions {
public:
    explicit LibraryFunctions(SymbolTable& symbols);

    /// Returns an ordinary function for a name that is not special.
    [[nodiscard]] const LibraryFunction& of(Symbol name) const {
        const auto* found = functions_.find(name);
        return found ? *found : kOrdinary;
    }

    static constexpr LibraryFunction kOrdinary{};

private:
    SymbolMap<const LibraryFunction> functions_;
};

} // namespace qltoolkit
