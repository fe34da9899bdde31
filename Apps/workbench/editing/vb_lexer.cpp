#include "Apps/workbench/editing/vb_lexer.h"
#include "Basic/vb_words.h"
#include <array>

namespace workbench {

namespace {

/// The lexer's styles, from 0.
constexpr std::array kStyles{"Default",      "Comment",  "Number",     "Keyword", "String",
                             "Preprocessor", "Operator", "Identifier", "Date",    "Unclosed string"};
enum Style { kDefault, kComment, kNumber, kKeyword, kString, kPreprocessor, kOperator, kIdentifier, kDate, kUnclosed };

bool isHighlighted(const basic::VbWordInfo& word) {
    // Contextual words, but far more often the names of members and variables.
    for (const auto* name : {"Database", "Tab", "Text"})
        if (word.text == name) return false;
    return word.kind <= basic::VbWordKind::Statement;
}

/// The highlighted words separated by blanks, in lower case as the lexer compares.
QByteArray highlightedWords() {
    QByteArray words;
    for (const auto& word : basic::vbWords())
        if (isHighlighted(word)) words.append(word.text.data(), qsizetype(word.text.size())).append(' ');
    return words.toLower();
}

} // namespace

void VbLexer::showIn(const CodeLook& look) {
    setDefaultFont(look.font);
    for (int style = 0; style < int(kStyles.size()); ++style) setFont(look.font, style);
    const auto& colours = look.colours;
    setDefaultPaper(colours.paper);
    setDefaultColor(colours.text);
    setPaper(colours.paper);
    setColor(colours.text);
    setColor(colours.comment, kComment);
    setColor(colours.number, kNumber);
    setColor(colours.keyword, kKeyword);
    setColor(colours.string, kString);
    setColor(colours.directive, kPreprocessor);
    setColor(colours.number, kDate);
    setColor(colours.error, kUnclosed);
}

QString VbLexer::description(int style) const {
    return style >= 0 && style < int(kStyles.size()) ? QString(kStyles[std::size_t(style)]) : QString();
}

const char* VbLexer::keywords(int set) const {
    static const auto words = highlightedWords();
    return set == 1 ? words.constData() : nullptr;
}

} // namespace workbench
