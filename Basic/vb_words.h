#pragma once
// The words of the language. The table is in vb_words.def.
#include <cstdint>
#include <span>
#include <string_view>

namespace basic {

enum class VbWord : std::uint8_t {
    None,
#define VB_WORD(word, kind, asName) word,
#include "Basic/vb_words.def"
};

enum class VbWordKind : std::uint8_t { Reserved, Type, Contextual, Conversion, Statement, Header, Unused, Directive };

/// Whether the validator accepts a word as the name of a form or control.
enum class VbWordAsName : std::uint8_t { Allowed, Refused };

struct VbWordInfo {
    std::string_view text;
    VbWordKind kind;
    VbWordAsName asName;
};

/// All rows, sorted by kind. The directives, which have no VbWord, are the last.
[[nodiscard]] std::span<const VbWordInfo> vbWords();

} // namespace basic
