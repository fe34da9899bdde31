// Conditional compilation: #Const, #If, #ElseIf, #Else, #End If. Handled in advance(), so that statements never see it.
#include "Components/QLToolkit/parser/parser.h"

namespace qltoolkit {

// Called at the # of a directive. Advances to the first token after it that is compiled.
void Parser::directive() {
    const auto previousEnd = previousEnd_;
    while (at(TokenKind::Directive)) {
        errorsBefore_ = diagnostics_.errors();
        const Pos pos = tok_.begin;
        lexer_.next(tok_);
        previousEnd_ = pos;
        try {
            if (at(Keyword::If))
                ifDirective(pos);
            else if (at(Keyword::ElseIf))
                elseIfDirective(pos);
            else if (at(Keyword::Else))
                elseDirective(pos);
            else if (at(Keyword::End) || at(Keyword::EndIf))
                endIfDirective(pos);
            else if (at(Keyword::Const))
                constDirective();
            else if (conditions_.active())
                fail(Message::DirectiveUnknown, pos, tokenText());
            else
                recover();
        } catch (const SyntaxError&) { recover(); }
        if (at(TokenKind::EndOfFile)) break;
        if (conditions_.active())
            lexer_.next(tok_);
        else
            skipInactive();
    }
    errorsBefore_ = diagnostics_.errors();
    previousEnd_ = previousEnd;
}

void Parser::ifDirective(Pos pos) {
    const bool outer = conditions_.active();
    conditions_.open().push_back({pos, !outer, false, false});
    if (!outer) return recover();
    // Set first: after an error in the condition no branch is compiled, and nothing else is reported.
    conditions_.open().back().taken = true;
    const bool active = directiveCondition();
    conditions_.open().back().active = active;
    conditions_.open().back().taken = active;
    endOfDirective();
}

void Parser::elseIfDirective(Pos pos) {
    if (conditions_.open().empty()) fail(Message::ConditionWithoutIf, pos, "#ElseIf");
    auto& open = conditions_.open().back();
    if (open.seenElse) fail(Message::ConditionAfterElse, pos, "#ElseIf");
    open.active = false;
    if (open.taken) return recover();
    open.taken = true;
    const bool active = directiveCondition();
    conditions_.open().back().active = active;
    conditions_.open().back().taken = active;
    endOfDirective();
}

void Parser::elseDirective(Pos pos) {
    if (conditions_.open().empty()) fail(Message::ConditionWithoutIf, pos, "#Else");
    auto& open = conditions_.open().back();
    if (open.seenElse) fail(Message::ConditionAfterElse, pos, "#Else");
    open.seenElse = true;
    open.active = !open.taken;
    open.taken = true;
    lexer_.next(tok_);
    endOfDirective();
}

void Parser::endIfDirective(Pos pos) {
    if (at(Keyword::End)) {
        lexer_.next(tok_);
        if (!at(Keyword::If)) fail(Message::DirectiveUnknown, pos, "End");
    }
    if (conditions_.open().empty()) fail(Message::ConditionWithoutIf, pos, "#End If");
    conditions_.open().pop_back();
    lexer_.next(tok_);
    endOfDirective();
}

void Parser::constDirective() {
    if (!conditions_.active()) return recover();
    advance();
    const Symbol name = expectName();
    expect(TokenKind::Equal, Message::ConstantValueExpected);
    const Pos begin = tok_.begin;
    const Expr* e = expression();
    auto value = conditions_.evaluate(source_, *e);
    if (!value) fail(Message::ConditionInvalid, begin);
    conditions_.define(name, std::move(*value));
    endOfDirective();
}

bool Parser::directiveCondition() {
    advance();
    const Pos begin = tok_.begin;
    const Expr* e = expression();
    const auto value = conditions_.evaluate(source_, *e);
    if (!value || value->kind == ConditionalValue::Kind::Text) fail(Message::ConditionInvalid, begin);
    if (!accept(Keyword::Then)) failHere(Message::DirectiveThenMissing);
    return value->number != 0;
}

void Parser::endOfDirective() {
    if (!tok_.endsLine()) failHere(Message::EndOfStatementExpected);
}

// Skips lines up to the next directive.
void Parser::skipInactive() {
    if (lexer_.skipToDirective()) return lexer_.next(tok_);
    tok_ = {};
    tok_.begin = tok_.end = source_.size();
}

} // namespace qltoolkit
