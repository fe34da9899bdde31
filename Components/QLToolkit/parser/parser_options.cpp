// Attribute, Option, DefType and Implements.
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

} // namespace

bool Parser::atAttribute() {
    return at(Keyword::Attribute) && tok_.begin == source_.lineStart(source_.lineOf(tok_.begin)) &&
           lexer_.peek().isWord();
}

void Parser::attribute() {
    const Pos pos = tok_.begin;
    const auto line = source_.lineOf(pos);
    if (line >= source_.codeBegin()) module_.hiddenLines.push_back(line);
    advance();
    const Pos pathPos = tok_.begin;
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
                                       Span<Symbol>{whole.begin(), whole.size() - 1}, pathPos, name,
                                       values.finish(module_.arena)));
}

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

} // namespace qltoolkit
