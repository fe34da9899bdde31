#include "Add-in/build/reserved_words.h"
#include "Basic/text.h"
#include "Basic/vb_words.h"
#include <unordered_set>

namespace fernwick {

namespace {

std::unordered_set<std::string> refusedWords() {
    std::unordered_set<std::string> words;
    for (const auto& word : basic::vbWords())
        if (word.asName == basic::VbWordAsName::Refused) words.insert(basic::UCase(std::string(word.text)));
    return words;
}

} // namespace

bool IsReservedWord(const std::string& word) {
    static const auto words = refusedWords();
    return words.count(basic::UCase(word)) > 0;
}

} // namespace fernwick
