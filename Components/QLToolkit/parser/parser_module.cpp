// The declarations of a module.
#include "Components/QLToolkit/parser/node_heads.h"
#include "Components/QLToolkit/parser/parser.h"

namespace qltoolkit {

namespace {

TypeKind typeOfDefWord(Keyword k) {
    switch (k) {
    case Keyword::DefBool: return TypeKind::Boolean;
    case Keyword::DefByte: return TypeKind::Byte;
    case Keyword::DefCur: return TypeKind::Currency;
    case Keyword::DefDate: return TypeKind::Date;
    case Keyword::DefDbl: return TypeKind::Double;
    case Keyword::DefInt: return TypeKind::Integer;
    case Keyword::DefLng: return TypeKind::Long;
    case Keyword::DefObj: return TypeKind::Object;
    case Keyword::DefSng: return TypeKind::Single;
    case Keyword::DefStr: return TypeKind::String;
    default: return TypeKind::Variant;
    }
}

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

// What may stand with or without Public and Private.
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

// A line that may stand only in a procedure. A missing head would make each of its lines an error: one is enough.
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

// Sub, Function or Property, with what may stand before them: these begin a procedure even inside another.
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

// ---------------------------------------------------------------- Attribute

bool Parser::atAttribute() {
    return at(Keyword::Attribute) && tok_.begin == source_.lineStart(source_.lineOf(tok_.begin)) &&
           lexer_.peek().isWord();
}

void Parser::attribute() {
    const Pos pos = tok_.begin;
    const auto line = source_.lineOf(pos);
    if (line >= source_.codeBegin()) module_.hiddenLines.push_back(line);
    advance();
    ListBuilder<Symbol> path{scratch_.symbols};
    for (;;) {
        if (!tok_.isWord()) failHere(Message::AttributeInvalid);
        path.add(symbolOf(tok_));
        advance();
        if (!accept(TokenKind::Dot)) break;
    }
    expect(TokenKind::Equal, Message::AttributeInvalid);
    ListBuilder<const Expr*> values{scratch_.expressions};
    do { values.add(expression()); } while (accept(TokenKind::Comma));
    const Symbol name = path.back();
    const auto whole = path.finish(module_.arena);
    addDeclaration(make<AttributeDecl>(declHead(DeclKind::Attribute, Visibility::Default, pos),
                                       Span<Symbol>{whole.begin(), whole.size() - 1}, name,
                                       values.finish(module_.arena)));
}

// ---------------------------------------------------------------- Option, DefType, Implements

void Parser::option() {
    const Pos pos = tok_.begin;
    advance();
    const auto made = [&](DeclKind kind) { addDeclaration(make<Decl>(declHead(kind, Visibility::Default, pos))); };
    if (accept(Keyword::Explicit)) return made(DeclKind::OptionExplicit);
    if (accept(Keyword::Private)) {
        expect(Keyword::Module, Message::OptionUnknown);
        return made(DeclKind::OptionPrivateModule);
    }
    if (accept(Keyword::Compare)) {
        if (accept(Keyword::Text)) return made(DeclKind::OptionCompareText);
        if (accept(Keyword::Binary)) return made(DeclKind::OptionCompareBinary);
        if (accept(Keyword::Database)) return made(DeclKind::OptionCompareDatabase);
        failHere(Message::OptionUnknown);
    }
    expect(Keyword::Base, Message::OptionUnknown);
    if (!at(TokenKind::Integer) || tok_.integer > 1) failHere(Message::OptionBaseInvalid);
    addDeclaration(make<OptionBaseDecl>(declHead(DeclKind::OptionBase, Visibility::Default, pos),
                                        static_cast<std::uint32_t>(tok_.integer)));
    advance();
}

// DefInt A-C, X
void Parser::defType() {
    const Pos pos = tok_.begin;
    const TypeKind type = typeOfDefWord(tok_.keyword);
    advance();
    const auto letter = [&]() -> unsigned {
        const char c = static_cast<char>(source_.data()[tok_.begin] | 0x20);
        if (!tok_.isWord() || tok_.end != tok_.begin + 1 || c < 'a' || c > 'z') failHere(Message::DefTypeRange);
        advance();
        return static_cast<unsigned>(c - 'a');
    };
    std::uint32_t letters = 0;
    do {
        const unsigned first = letter();
        const unsigned last = accept(TokenKind::Minus) ? letter() : first;
        for (unsigned l = std::min(first, last); l <= std::max(first, last); ++l) letters |= 1u << l;
    } while (accept(TokenKind::Comma));
    addDeclaration(make<DefTypeDecl>(declHead(DeclKind::DefType, Visibility::Default, pos), type, letters));
}

void Parser::implements() {
    const Pos pos = tok_.begin;
    advance();
    addDeclaration(make<ImplementsDecl>(declHead(DeclKind::Implements, Visibility::Default, pos), className()));
}

// ---------------------------------------------------------------- variables, constants, events, Declare

void Parser::variables(Visibility visibility, Pos pos) {
    addDeclaration(make<VariablesDecl>(declHead(DeclKind::Variables, visibility, pos), variableList()));
}

void Parser::constants(Visibility visibility, Pos pos) {
    advance();
    addDeclaration(make<ConstantsDecl>(declHead(DeclKind::Constants, visibility, pos), constantList()));
}

void Parser::eventDeclaration(Visibility visibility, Pos pos) {
    advance();
    const Symbol name = expectName();
    const auto list = at(TokenKind::LeftParen) ? parameters(false) : Span<Parameter>{};
    for (const Parameter& p : list)
        if (p.optional || p.paramArray) fail(Message::EventParameter, p.pos);
    addDeclaration(make<EventDecl>(declHead(DeclKind::Event, visibility, pos), name, list));
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

// Alias "#123" calls by number.
void Parser::checkOrdinal(const StringExpr& alias) {
    const auto text = source_.text(alias.pos + 1, alias.pos + 1 + alias.length);
    if (!text.starts_with('#')) return;
    const bool digits = text.size() > 1 && text.find_first_not_of("0123456789", 1) == std::string_view::npos;
    if (!digits) fail(Message::OrdinalAliasInvalid, alias.pos, text);
}

} // namespace qltoolkit
