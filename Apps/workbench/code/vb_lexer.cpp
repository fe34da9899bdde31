#include "Apps/workbench/code/vb_lexer.h"
#include <QFontDatabase>
#include <array>

namespace workbench {

namespace {

/// The lexer's styles, from 0.
constexpr std::array kStyles{"Default",      "Comment",  "Number",     "Keyword", "String",
                             "Preprocessor", "Operator", "Identifier", "Date",    "Unclosed string"};
enum Style { kDefault, kComment, kNumber, kKeyword, kString, kPreprocessor, kOperator, kIdentifier, kDate, kUnclosed };

/// In lower case, as the lexer compares.
constexpr auto kWords = "addressof alias and any appactivate as attribute base beep binary boolean byref byte byval "
                        "call case cbool cbyte ccur cdate cdbl cint clng close compare const csng cstr currency cvar "
                        "date declare defbool defbyte defcur defdate defdbl defint deflng defobj defsng defstr defvar "
                        "dim do double each else elseif empty end enum eqv erase error event exit explicit false for "
                        "friend function get global gosub goto if imp implements in input integer is let lib like "
                        "line local lock long loop lset me mid mod module name new next not nothing null object on "
                        "open option optional or output paramarray preserve print private property public put "
                        "raiseevent random read redim rem reset resume return rset seek select set single static step "
                        "stop string sub then time to true type typeof unlock until variant wend while width with "
                        "withevents write xor";

} // namespace

VbLexer::VbLexer(QObject* parent) : QsciLexer(parent) {
    auto font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    constexpr int kPoints = 10;
    font.setPointSize(kPoints);
    setDefaultFont(font);
    for (int style = 0; style < int(kStyles.size()); ++style) setFont(font, style);
    colour(currentTheme());
}

void VbLexer::colour(Theme theme) {
    const auto& colours = codeColours(theme);
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

const char* VbLexer::keywords(int set) const { return set == 1 ? kWords : nullptr; }

} // namespace workbench
