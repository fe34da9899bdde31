#include "Basic/vb_words.h"
#include <algorithm>
#include <iterator>

namespace basic {

namespace {

constexpr VbWordInfo kVbWords[] = {
#define VB_WORD(word, kind, asName) {#word, VbWordKind::kind, VbWordAsName::asName},
#define VB_DIRECTIVE(word, asName) {"#" #word, VbWordKind::Directive, VbWordAsName::asName},
#include "Basic/vb_words.def"
};

static_assert(std::is_sorted(std::begin(kVbWords), std::end(kVbWords),
                             [](const VbWordInfo& a, const VbWordInfo& b) { return a.kind < b.kind; }),
              "the kinds in vb_words.def are in the order of VbWordKind");

} // namespace

std::span<const VbWordInfo> vbWords() { return kVbWords; }

} // namespace basic
