// The declarations of a module.
#include "Components/QLToolkit/parser/node_heads.h"
#include "Components/QLToolkit/parser/parser.h"

namespace qltoolkit {

namespace {

Visibility visibilityOf(Keyword k) {
    switch (k) {
    case Keyword::Public: return Visibility::Public;
    case Keyword::Private: return Visibility::Private;
    case Keyword::Friend: return Visibility::Friend;
    case Keyword::Global: return Visibility::Global;
    default: return Visibility::Default;
    }
}

} // namespace

void Parser::addDeclaration(Decl* d) {
    (lastDeclaration_ ? lastDeclaration_->next : module_.declarations) = d;
    lastDeclaration_ = d;
    if (d->kind != DeclKind::Attribute) strayReported_ = false;
}

void Parser::declaration() {
    if (atAttribute()) {
        attribute();
        return expectEndOfStatement();
    }
    if (atRem()) return;
    if (!at(TokenKind::Keyword)) return strayStatement();
    switch (tok_.keyword) {
    case Keyword::Option: option(); break;
    case Keyword::Implements: implements(); break;
    case Keyword::Public:
    case Keyword::Private:
    case Keyword::Friend:
    case Keyword::Global:
    case Keyword::Static:
    case Keyword::Dim: modifiedDeclaration(); break;
    default:
        if (tok_.keyword >= Keyword::DefBool && tok_.keyword <= Keyword::DefVar)
            defType();
        else
            declarationAfter(Visibility::Default, tok_.begin);
    }
    if (!cutShort_) expectEndOfStatement();
    cutShort_ = false;
}

void Parser::modifiedDeclaration() {
    const Pos pos = tok_.begin;
    const Visibility visibility = visibilityOf(tok_.keyword);
    const bool dim = at(Keyword::Dim);
    bool isStatic = at(Keyword::Static);
    advance();
    if (!isStatic && !dim) isStatic = accept(Keyword::Static);
    if (at(Keyword::Sub) || at(Keyword::Function) || atPropertyHead()) return procedure(visibility, isStatic, pos);
    if (isStatic) fail(Message::OutsideProcedure, pos, "Static");
    if (at(Keyword::WithEvents) || atName()) return variables(visibility, pos);
    if (dim) failHere(at(TokenKind::Keyword) ? Message::NameReserved : Message::NameExpected);
    declarationAfter(visibility, pos);
}

// Declarations with or without Public or Private.
void Parser::declarationAfter(Visibility visibility, Pos pos) {
    const bool modified = visibility != Visibility::Default;
    if (!at(TokenKind::Keyword)) failHere(Message::DeclarationExpected);
    if (atPropertyHead()) return procedure(visibility, false, pos);
    switch (tok_.keyword) {
    case Keyword::Sub:
    case Keyword::Function: return procedure(visibility, false, pos);
    case Keyword::Const: return constants(visibility, pos);
    case Keyword::Type: return typeDeclaration(visibility, pos);
    case Keyword::Enum: return enumDeclaration(visibility, pos);
    case Keyword::Declare: return declareDeclaration(visibility, pos);
    case Keyword::Event: return eventDeclaration(visibility, pos);
    default: break;
    }
    if (modified) failHere(Message::NameReserved);
    strayStatement();
}

// Reports a line that is allowed only in a procedure. Consecutive lines are reported once, because the first line of
// their procedure may be missing.
void Parser::strayStatement() {
    const Token after = at(Keyword::End) ? lexer_.peek() : Token{};
    const bool end = after.is(Keyword::Sub) || after.is(Keyword::Function) || after.is(Keyword::Property);
    if (!strayReported_)
        report(end ? Message::EndWithoutProcedure : Message::OutsideProcedure, tok_.begin, tokenText());
    strayReported_ = !end;
    recover();
}

bool Parser::atPropertyHead() {
    if (!at(Keyword::Property)) return false;
    const Token after = lexer_.peek();
    return after.is(Keyword::Get) || after.is(Keyword::Let) || after.is(Keyword::Set) ||
           after.is(TokenKind::Identifier);
}

// Returns true at Sub, Function or Property with optional modifiers. They begin a procedure even inside another.
bool Parser::atProcedureHead() {
    if (!at(TokenKind::Keyword)) return false;
    switch (tok_.keyword) {
    case Keyword::Sub:
    case Keyword::Function: return true;
    case Keyword::Property: return atPropertyHead();
    case Keyword::Public:
    case Keyword::Private:
    case Keyword::Friend:
    case Keyword::Global:
    case Keyword::Static: {
        const Token after = lexer_.peek();
        return after.is(Keyword::Sub) || after.is(Keyword::Function) || after.is(Keyword::Property) ||
               after.is(Keyword::Static);
    }
    default: return false;
    }
}

void Parser::variables(Visibility visibility, Pos pos) {
    addDeclaration(make<VariablesDecl>(declHead(DeclKind::Variables, visibility, pos), variableList()));
}

void Parser::constants(Visibility visibility, Pos pos) {
    advance();
    addDeclaration(make<ConstantsDecl>(declHead(DeclKind::Constants, visibility, pos), constantList()));
}

void Parser::eventDeclaration(Visibility visibility, Pos pos) {
    advance();
    Pos namePos = 0;
    const Symbol name = expectName(&namePos);
    const auto list = at(TokenKind::LeftParen) ? parameters(false) : Span<Parameter>{};
    for (const Parameter& p : list)
        if (p.optional || p.paramArray) fail(Message::EventParameter, p.pos);
    addDeclaration(make<EventDecl>(declHead(DeclKind::Event, visibility, pos), name, namePos, list));
}

void Parser::declareDeclaration(Visibility visibility, Pos pos) {
    advance();
    auto* d = make<DeclareDecl>(declHead(DeclKind::Declare, visibility, pos), Signature{}, nullptr, nullptr);
    Signature& s = d->signature;
    if (!at(Keyword::Sub) && !at(Keyword::Function)) failHere(Message::DeclarationExpected);
    s.kind = at(Keyword::Sub) ? ProcedureKind::Sub : ProcedureKind::Function;
    advance();
    s.name = expectName(&s.namePos, &s.suffix);
    accept(Keyword::CDecl);
    expect(Keyword::Lib, Message::DeclareLibExpected);
    const auto text = [&] {
        if (!at(TokenKind::String)) failHere(Message::StringExpected);
        return static_cast<const StringExpr*>(stringLiteral());
    };
    d->library = text();
    if (accept(Keyword::Alias)) d->alias = text();
    if (d->alias) checkOrdinal(*d->alias);
    if (at(TokenKind::LeftParen)) s.parameters = parameters(true);
    if (at(Keyword::As)) s.result = resultType();
    addDeclaration(d);
}

// Alias "#123" identifies a procedure by its number.
void Parser::checkOrdinal(const StringExpr& alias) {
    const auto text = source_.text(alias.pos + 1, alias.pos + 1 + alias.length);
    if (!text.starts_with('#')) return;
    const bool digits = text.size() > 1 && text.find_first_not_of("0123456789", 1) == std::string_view::npos;
    if (!digits) fail(Message::OrdinalAliasInvalid, alias.pos, text);
}

} // namespace qltoolkit
