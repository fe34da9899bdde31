#pragma once
// A recursive-descent parser. After an error it skips the statement, or in the worst case the procedure, and continues,
// so that one run finds many errors. It reports one error per statement.
//
// The member functions are defined by subject in parser.cpp (foundation) and parser_*.cpp.
#include "Components/QLToolkit/lexer/lexer.h"
#include "Components/QLToolkit/parser/ast.h"
#include "Components/QLToolkit/parser/conditional.h"
#include "Components/QLToolkit/parser/conditional_constants.h"
#include "Components/QLToolkit/parser/list_builder.h"
#include "Components/QLToolkit/source/diagnostic.h"
#include <array>

namespace qltoolkit {

/// The maximum depth of nested expressions and of nested statements.
inline constexpr int kMaxDepth = 200;

class Parser {
public:
    Parser(const SourceText&, SymbolTable&, Diagnostics&, const ConditionalConstants&, Module&);

    /// Parses the whole file into the module. Must be called once. Throws TooManyErrors.
    void parse();

private:
    /// Thrown after an error was reported, to the function that can continue.
    struct SyntaxError {};
    /// Thrown when the rest of the procedure cannot be parsed.
    struct ProcedureAbandoned {};

    enum class BlockKind : std::uint8_t { Procedure, If, Select, For, Do, While, With };
    static constexpr std::size_t kBlockKinds = 7;
    struct OpenBlock {
        BlockKind kind;
        Pos pos;
        bool doubtful; // after an error in its first line, it may not be a block at all
    };
    /// Increments a depth during its lifetime.
    class Nesting {
    public:
        explicit Nesting(int& depth) : depth_(depth) { ++depth_; }
        ~Nesting() { --depth_; }
        Nesting(const Nesting&) = delete;

    private:
        int& depth_;
    };
    /// A list of statements under construction.
    struct BlockBuilder {
        Block block;
        Stmt* last = nullptr;
        void add(Stmt* stmt) {
            (last ? last->next : block.first) = stmt;
            last = stmt;
        }
    };

    // Foundation
    void advance() {
        previousEnd_ = tok_.end;
        lexer_.next(tok_);
    }
    // The same at the end of a line: only there directives may follow.
    void advanceLine() {
        advance();
        if (at(TokenKind::Directive)) [[unlikely]]
            directive();
    }
    [[noreturn]] void fail(Message, Pos at, std::string_view detail = {});
    [[noreturn]] void failHere(Message m) { fail(m, here(), tokenText()); }
    [[noreturn]] void failExpression();
    void report(Message, Pos at, std::string_view detail = {});
    void recover();
    [[nodiscard]] Pos here() const { return tok_.endsStatement() ? previousEnd_ : tok_.begin; }
    [[nodiscard]] std::string tokenText() const;
    [[nodiscard]] bool at(TokenKind k) const { return tok_.is(k); }
    [[nodiscard]] bool at(Keyword k) const { return tok_.is(k); }
    bool accept(TokenKind);
    bool accept(Keyword);
    void expect(TokenKind, Message);
    void expect(Keyword, Message);
    [[nodiscard]] bool endsStatement() const { return tok_.endsStatement() || at(Keyword::Else); }
    [[nodiscard]] Symbol symbolOf(const Token& token) {
        const Symbol* const found = symbols_.find(token.nameKey);
        return found ? *found : intern(token);
    }
    [[nodiscard]] Symbol intern(const Token&);
    [[nodiscard]] bool atName() const;
    Symbol expectName(Pos* at = nullptr, TypeSuffix* suffix = nullptr);
    void skipLineEnds();
    template <class F>
    void head(F&& parseHead);
    template <class T, class... Args>
    T* make(Args&&... args) {
        return module_.arena.make<T>(static_cast<Args&&>(args)...);
    }

    // Module
    void declaration();
    void modifiedDeclaration();
    void declarationAfter(Visibility, Pos);
    void option();
    void defType();
    void implements();
    void variables(Visibility, Pos);
    void constants(Visibility, Pos);
    void eventDeclaration(Visibility, Pos);
    void declareDeclaration(Visibility, Pos);
    void attribute();
    void checkOrdinal(const StringExpr& alias);
    void strayStatement();
    void addDeclaration(Decl*);
    [[nodiscard]] bool atProcedureHead();
    [[nodiscard]] bool atPropertyHead();
    [[nodiscard]] bool atAttribute();

    // Variables and types
    Span<Variable> variableList();
    Variable variable();
    void variableType(Variable&);
    Span<Bound> bounds();
    Span<Constant> constantList();
    const TypeRef* asClause(bool allowNew);
    const TypeRef* typeName(bool isNew);
    const TypeRef* className(bool isNew = false);
    void typeDeclaration(Visibility, Pos);
    void typeMember(ListBuilder<Variable>&);
    void enumDeclaration(Visibility, Pos);
    void enumMember(ListBuilder<Constant>&);
    [[nodiscard]] bool atMemberListEnd(Keyword);
    bool atRem();
    void endMemberList(Keyword, Message, Pos);

    // Procedures
    void procedure(Visibility, bool isStatic, Pos);
    void procedureKind(ProcedureKind&);
    void signature(Signature&);
    Span<Parameter> parameters(bool ofDeclare, bool lastIsValue = false);
    Parameter parameter(bool ofDeclare);
    void checkParameter(const Parameter&, const Parameter* previous, bool anyOrder);
    const TypeRef* resultType();
    void endProcedure(ProcedureDecl&);
    void skipProcedure();

    // Blocks
    Block block(BlockKind);
    void openBlock(BlockKind, Pos, bool doubtful = false);
    void closeBlock();
    [[nodiscard]] bool endsBlock(BlockKind);
    [[nodiscard]] bool closedBy(BlockKind inner, BlockKind wanted, Message stray);
    [[nodiscard]] bool endKeywordEnds(BlockKind);
    bool stray(Message);
    bool unclosed();
    [[nodiscard]] bool isOpen(BlockKind k) const { return openCount_[static_cast<std::size_t>(k)] != 0; }
    void statementLine(BlockBuilder&);
    void expectEndOfStatement();
    bool label(BlockBuilder&);
    [[nodiscard]] bool mayBeLabel() const;
    Stmt* ifStatement();
    bool recoverToThen();
    Stmt* singleLineIf(Pos, const Expr* condition);
    Block singleLineBody();
    Stmt* blockIf(Pos, const Expr* condition);
    const Expr* condition();
    void elseBranch(ListBuilder<IfBranch>&, bool& seenElse);
    Stmt* selectStatement();
    Block skipToCase();
    void endBlock(Keyword);
    void caseBranch(ListBuilder<CaseBranch>&, bool& seenElse);
    CaseItem caseItem();
    Stmt* forStatement();
    Stmt* forEachStatement(Pos);
    Stmt* forCounterStatement(Pos);
    const Expr* endFor(const Expr* variable);
    [[nodiscard]] std::uint16_t linesSince(Pos begin) const;
    Stmt* doStatement();
    LoopTest loopTest(const Expr*& condition);
    Stmt* whileStatement();
    Stmt* withStatement();

    // Statements
    Stmt* statement();
    Stmt* keywordStatement();
    Stmt* simple(StmtKind);
    Stmt* localVariables(bool isStatic);
    Stmt* localConstants();
    Stmt* reDim();
    ReDimItem reDimItem();
    Stmt* erase();
    Stmt* assignment(StmtKind, bool explicitLet);
    Stmt* raiseEvent();
    [[noreturn]] void failInsideProcedure();

    // Jumps
    Target target();
    Stmt* jump(StmtKind);
    Stmt* onStatement();
    Stmt* onError(Pos);
    Stmt* resume();
    Stmt* exit();

    // Files
    const Expr* fileNumber();
    Stmt* open();
    OpenMode openMode();
    OpenAccess openAccess();
    OpenLock openLock();
    Stmt* close();
    Stmt* getOrPut(StmtKind);
    Stmt* seek();
    Stmt* lock(StmtKind);
    Stmt* input();
    Stmt* lineInput();
    Stmt* width();
    Stmt* printFile(StmtKind);
    Span<PrintItem> printItems();

    // Calls and assignments
    Stmt* callOrAssign();
    Stmt* callStatement();
    Stmt* assignTo(Pos, const Expr* target);
    Stmt* midAssign(Pos, const IndexExpr&, bool bytes);
    Stmt* callWithoutParentheses(Pos, const Expr* callee);
    Stmt* callWithParentheses(Pos, const IndexExpr&);
    Stmt* coordinateCall(Pos, const Expr* callee, const IndexExpr* first);
    const Expr* coordinates(const IndexExpr* first);
    void point(const Expr*& x, const Expr*& y);
    Stmt* makeCall(Pos, const Expr* callee, ListBuilder<Argument>&);
    void restOfArguments(ListBuilder<Argument>&);
    Span<Argument> argumentsInParentheses();
    Argument argument();
    void checkArguments(const ListBuilder<Argument>&);
    [[nodiscard]] Symbol lastName(const Expr*) const;
    [[nodiscard]] bool drawsAtCoordinates(const Expr* callee) const;

    // Expressions
    static constexpr int kWeakest = 1; // power of the operators that bind least
    const Expr* expression() { return binary(kWeakest); }
    const Expr* binary(int minPower);
    const Expr* binaryRest(const Expr* left, int minPower);
    const Expr* operand();
    const Expr* keywordOperand();
    const Expr* prefix(Operator, int power);
    const Expr* literal();
    IntegerExpr* integer();
    FloatExpr* real();
    const Expr* stringLiteral();
    const Expr* dateLiteral();
    const Expr* octalLiteral();
    const Expr* parenthesized();
    const Expr* typeOf();
    const Expr* name();
    const Expr* nameAndRest() {
        const Expr* e = name();
        return atPostfix() ? postfix(e, false) : e;
    }
    const Expr* withMember();
    const Expr* member(const Expr* base);
    const Expr* postfix(const Expr* base, bool callee);
    [[nodiscard]] bool atPostfix() const {
        return at(TokenKind::Dot) || at(TokenKind::Bang) || at(TokenKind::LeftParen);
    }
    const Expr* reference();

    // Conditional compilation
    void directive();
    void ifDirective(Pos);
    void elseIfDirective(Pos);
    void elseDirective(Pos);
    void endIfDirective(Pos);
    void constDirective();
    bool directiveCondition();
    void skipInactive();
    void endOfDirective();

    /// Names with a special meaning in the grammar.
    struct KnownNames {
        Symbol mid, midB, line, circle, pset, scale, name, doEvents, print;
    };
    struct Scratch {
        std::vector<Argument> arguments;
        std::vector<Variable> variables;
        std::vector<Constant> constants;
        std::vector<Parameter> parameters;
        std::vector<Bound> bounds;
        std::vector<IfBranch> ifBranches;
        std::vector<CaseBranch> caseBranches;
        std::vector<CaseItem> caseItems;
        std::vector<ReDimItem> reDimItems;
        std::vector<const Expr*> expressions;
        std::vector<Target> targets;
        std::vector<PrintItem> printItems;
        std::vector<Symbol> symbols;
    };

    const SourceText& source_;
    SymbolTable& symbols_;
    Diagnostics& diagnostics_;
    Module& module_;
    Lexer lexer_;
    KnownNames known_;
    Conditions conditions_;
    Token tok_;
    Pos previousEnd_ = 0;
    Decl* lastDeclaration_ = nullptr;
    ProcedureDecl* procedure_ = nullptr; // whose body is parsed
    std::size_t errorsBefore_ = 0;       // at the beginning of the statement, which reports one error
    bool lineStart_ = true;              // only blanks precede the token on its line
    bool strayReported_ = false;         // consecutive statements outside a procedure are reported once
    bool inNextList_ = false;            // after the comma of `Next a, b`
    bool cutShort_ = false;              // a block ended with an enclosing one, to which the token belongs
    bool inReDim_ = false;
    Pos unclosedAt_ = ~Pos{0}; // the token at which an unclosed block was reported
    int depth_ = 0;
    int statementDepth_ = 0;
    std::vector<OpenBlock> blocks_;
    std::array<unsigned, kBlockKinds> openCount_{};
    Scratch scratch_;
};

/// Parses the first line of a block. The body is parsed even after an error, so that its end is not a second error.
template <class F>
void Parser::head(F&& parseHead) {
    try {
        parseHead();
        expectEndOfStatement();
    } catch (const SyntaxError&) { recover(); }
}

} // namespace qltoolkit
