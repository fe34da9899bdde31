#pragma once
// The types of values.
#include <cstdint>

namespace qltoolkit {

/// What the tables of operators and coercions distinguish.
enum class ValueType : std::uint8_t {
    Boolean,
    Byte,
    Integer,
    Long,
    Single,
    Double,
    Currency,
    Decimal, ///< within Variants only
    Date,
    String,
    FixedString,
    Variant,
    Object,  ///< of any class
    Record,  ///< of a Type
    Array,   ///< of any element type
    Null,    ///< the literal
    Empty,   ///< the literal
    Nothing, ///< the literal
    Error,   ///< within Variants only
    Unknown, ///< after an error, or of a library that is absent: fits everywhere
    None     ///< what a Sub returns
};

/// A type as a declaration gives it.
struct Type {
    ValueType value = ValueType::Variant; ///< of the element if this is an array
    bool isArray = false;
    bool isEnum = false; ///< a Long; id is the enumeration
    /// Object: the class, 0 for any. Record: the Type. FixedString: the length. Otherwise 0.
    std::uint32_t id = 0;

    friend bool operator==(const Type&, const Type&) = default;
};

} // namespace qltoolkit
