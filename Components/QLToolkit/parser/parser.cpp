#include "Components/QLToolkit/parser/parser.h"

namespace qltoolkit {

namespace {

ConditionalValue numericConstant(long n) { return {ConditionalValue::Kind::Number, static_cast<double>(n), {}}; }

} // namespace

Parser::Parser(const SourceText& source, SymbolTable& symbols, Diagnostics& diagnostics,
               const ConditionalConstants& constants, Module& module)
    : source_(source),
      symbols_(symbols),
      diagnostics_(diagnostics),
      module_(module),
      lexer_(source, diagnostics),
      known_{symbols.intern("Mid"),    symbols.intern("MidB"),     symbols.intern("Line"),
             symbols.intern("Circle"), symbols.intern("PSet"),     symbols.intern("Scale"),
             symbols.intern("Name"),   symbols.intern("DoEvents"), symbols.intern("Print")} {
    for (const auto* name : {"QUINLOFT", "VBA6"}) conditions_.define(symbols.intern(name), numericConstant(1));
    conditions_.define(symbols.intern("Win32"), numericConstant(-1));
    for (const auto& [name, value] : constants) conditions_.define(symbols.intern(name), numericConstant(value));
}

void Parser::parse() {
    advanceLine();
    for (skipLineEnds(); !at(TokenKind::EndOfFile); skipLineEnds()) {
        errorsBefore_ = diagnostics_.errors();
        try {
            declaration();
        } catch (const SyntaxError&) { recover(); }
    }
    for (const auto& open : conditions_.open()) {
        diagnostics_.report(Message::IfDirectiveUnclosed, open.pos);
        break;
    }
}

// If the lexer has reported an error in this statement, this one is only a consequence.
void Parser::fail(Message message, Pos where, std::string_view detail) {
    if (!at(TokenKind::Invalid)) report(message, where, detail);
    throw SyntaxError{};
}

void Parser::report(Message message, Pos where, std::string_view detail) {
    if (diagnostics_.errors() == errorsBefore_) diagnostics_.report(message, where, detail);
}

void Parser::recover() {
    lexer_.quiet(true);
    while (!tok_.endsLine()) lexer_.next(tok_);
    lexer_.quiet(false);
    inReDim_ = false;
}

std::string Parser::tokenText() const {
    if (tok_.endsLine()) return "end of line";
    constexpr Pos kLongest = 60;
    return source_.decode(source_.text(tok_.begin, std::min(tok_.end, tok_.begin + kLongest)));
}

bool Parser::accept(TokenKind kind) {
    if (!at(kind)) return false;
    advance();
    return true;
}

bool Parser::accept(Keyword keyword) {
    if (!at(keyword)) return false;
    advance();
    return true;
}

void Parser::expect(TokenKind kind, Message message) {
    if (!accept(kind)) failHere(message);
}

void Parser::expect(Keyword keyword, Message message) {
    if (!accept(keyword)) failHere(message);
}

Symbol Parser::intern(const Token& token) {
    const Pos end = token.suffix ? token.end - 1 : token.end;
    if (token.nameKey != 0) return symbols_.internAscii(source_.data() + token.begin, end - token.begin, token.nameKey);
    const bool bracketed = source_.data()[token.begin] == '[';
    const auto name = bracketed ? source_.text(token.begin + 1, end - 1) : source_.text(token.begin, end);
    return symbols_.intern(source_.decode(name));
}

bool Parser::atName() const {
    return at(TokenKind::Identifier) ||
           (at(TokenKind::Keyword) && !isReserved(tok_.keyword) && !isTypeWord(tok_.keyword));
}

Symbol Parser::expectName(Pos* where, TypeSuffix* suffix) {
    if (!atName()) failHere(at(TokenKind::Keyword) ? Message::NameReserved : Message::NameExpected);
    if (where) *where = tok_.begin;
    if (suffix)
        *suffix = tok_.is(TokenKind::Identifier) ? tok_.suffix : '\0';
    else if (tok_.is(TokenKind::Identifier) && tok_.suffix)
        failHere(Message::SuffixAndType);
    const Symbol symbol = symbolOf(tok_);
    advance();
    return symbol;
}

void Parser::skipLineEnds() {
    while (at(TokenKind::EndOfLine) || at(TokenKind::Colon)) advanceLine();
}

} // namespace qltoolkit
