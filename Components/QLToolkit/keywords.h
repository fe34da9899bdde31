#pragma once
// The words of the language, and finding out whether a name is one.
#include <cstdint>
#include <string_view>

namespace compiler {

/// Reserved words can name nothing; the words of types are reserved as well; the rest have a meaning at their place only.
enum class Keyword : std::uint8_t {
    None,
    // reserved
    AddressOf, And, As, ByRef, ByVal, Call, Case, Close, Const, Declare,
    DefBool, DefByte, DefCur, DefDate, DefDbl, DefDec, DefInt, DefLng, DefObj, DefSng, DefStr, DefVar,
    Dim, Do, Each, Else, ElseIf, Empty, End, EndIf, Enum, Eqv, Erase, Event, Exit, False, For, Friend, Function,
    Get, Global, GoSub, GoTo, If, Imp, Implements, In, Input, Is, Let, Like, Lock, Loop, LSet, Me, Mod, New, Next,
    Not, Nothing, Null, On, Open, Option, Optional, Or, ParamArray, Preserve, Print, Private, Public, Put,
    RaiseEvent, ReDim, Rem, Resume, Return, RSet, Seek, Select, Set, Shared, Static, Stop, Sub, Then, To, True, Type,
    TypeOf, Unlock, Until, Wend, While, With, WithEvents, Write, Xor,
    // types
    Any, Boolean, Byte, Currency, Date, Double, Integer, Long, Single, String, Variant,
    // words with a meaning at their place
    Access, Alias, Append, Attribute, Base, Binary, CDecl, Compare, Database, Error, Explicit, Len, Lib, Line, Local,
    Mid, MidB, Module, Name, Object, Output, Property, Random, Read, Spc, Step, Tab, Text, Width,
};

inline constexpr Keyword kLastReserved = Keyword::Xor;
inline constexpr Keyword kLastType = Keyword::Variant;

[[nodiscard]] constexpr bool isReserved(Keyword k) { return k != Keyword::None && k <= kLastReserved; }
[[nodiscard]] constexpr bool isTypeWord(Keyword k) { return k > kLastReserved && k <= kLastType; }

/// The keyword that these characters are, whatever their case, or None. Reads up to 8 bytes beyond the end.
[[nodiscard]] Keyword keywordOf(const char* name, std::uint32_t length);

/// The word as it is written.
[[nodiscard]] std::string_view spelling(Keyword);

} // namespace compiler
