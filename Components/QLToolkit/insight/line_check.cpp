#include "Components/QLToolkit/insight/line_check.h"
#include "Components/QLToolkit/insight/typed_statement.h"
#include "Components/QLToolkit/parser/parse.h"
#include <algorithm>

namespace qltoolkit {

namespace {

/// Errors that depend on other lines.
bool isOfBlock(int number) {
    switch (static_cast<Message>(number)) {
    case Message::EndProcedureMissing:
    case Message::EndProcedureOther:
    case Message::EndWithoutProcedure:
    case Message::IfUnclosed:
    case Message::EndIfWithoutIf:
    case Message::ElseWithoutIf:
    case Message::SelectUnclosed:
    case Message::EndSelectWithoutSelect:
    case Message::CaseWithoutSelect:
    case Message::ForUnclosed:
    case Message::NextWithoutFor:
    case Message::DoUnclosed:
    case Message::LoopWithoutDo:
    case Message::WhileUnclosed:
    case Message::WendWithoutWhile:
    case Message::WithUnclosed:
    case Message::EndWithWithoutWith: return true;
    default: return false;
    }
}

/// Words whose statements end with their line.
bool isComplete(std::string_view statement) {
    // The first word is one before the cursor if a blank follows it.
    const auto end = std::min(statement.find_first_of(" \t(", statement.find_first_not_of(" \t")), statement.size());
    const auto first = std::string(statement.substr(0, end)) + " ";
    const TypedStatement typed{first};
    if (typed.tokens().size() != 1) return false;
    static constexpr std::string_view kWords[] = {"Dim",      "Private",    "Public", "Global", "Const",
                                                  "Declare",  "Implements", "Event",  "Sub",    "Function",
                                                  "Property", "Friend",     "Static"};
    return std::any_of(std::begin(kWords), std::end(kWords), [&](auto word) { return typed.tokens()[0].is(word); });
}

bool beginsList(std::string_view statement) {
    const TypedStatement typed{statement};
    return std::any_of(typed.tokens().begin(), typed.tokens().end(),
                       [](const auto& token) { return token.is("Type") || token.is("Enum"); });
}

} // namespace

std::optional<Diagnostic> errorOfStatement(std::string_view statement, bool isInProcedure) {
    if (!isInProcedure && (!isComplete(statement) || beginsList(statement))) return std::nullopt;
    std::string text{isInProcedure ? kAnyProcedure : ""};
    text.append(statement).append(isInProcedure ? "\nEnd Sub\n" : "\n");
    const SourceText source{"line.bas", std::move(text), basic::CodePage(basic::kUtf8Page)};
    SymbolTable symbols;
    for (auto& diagnostic : parseModule(source, symbols).diagnostics) {
        if (diagnostic.severity != Severity::Error || isOfBlock(diagnostic.number)) continue;
        diagnostic.line -= isInProcedure;
        return diagnostic;
    }
    return std::nullopt;
}

} // namespace qltoolkit
