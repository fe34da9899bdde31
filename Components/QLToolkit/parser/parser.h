#pragma once
// Tokens to a tree, by recursive descent. What an error leaves out is a statement, in the worst case a procedure; the
// parser then goes on, so that one run finds many errors, and reports one per statement.
//
// Its member functions stand in several files, by subject: parser.cpp (foundation), parser_module.cpp,
// parser_variables.cpp, parser_procedures.cpp, parser_blocks.cpp, parser_branches.cpp, parser_loops.cpp,
// parser_statements.cpp, parser_jumps.cpp, parser_files.cpp, parser_calls.cpp, parser_expressions.cpp,
// parser_directives.cpp.
#include "Components/QLToolkit/lexer/lexer.h"
#include "Components/QLToolkit/parser/ast.h"
#include "Components/QLToolkit/parser/conditional.h"
#include "Components/QLToolkit/parser/conditional_constants.h"
#include "Components/QLToolkit/parser/list_builder.h"
#include "Components/QLToolkit/source/diagnostic.h"
#include <array>

namespace qltoolkit {

/// How deep expressions may nest, and statements in one another.
inline constexpr int kMaxDepth = 200;

class Parser {
public:
    Parser(const SourceText&, SymbolTable&, Diagnostics&, const ConditionalConstants&, Module&);

    /// Parses the whole file into the module. Call once. Throws TooManyErrors.
    void parse();

private:
    /// A reported error on its way to the place where parsing goes on.
    struct SyntaxError {};
    /// The same, when the rest of the procedure can't be understood.
    struct ProcedureAbandoned {};

    enum class BlockKind : std::uint8_t { Procedure, If, Select, For, Do, While, With };
    static constexpr std::size_t kBlockKinds = 7;
    struct OpenBlock {
        BlockKind kind;
        Pos pos;
        bool doubtful; // an error in its head leaves open whether it is a block at all
    };
    /// One level deeper for the life of the object.
    class Nesting {
    public:
        explicit Nesting(int& depth) : depth_(depth) { ++depth_; }
        ~Nesting() { --depth_; }
        Nesting(const Nesting&) = delete;

    private:
        int& depth_;
    };
    /// Statements in the order in which they are found.
    struct BlockBuilder {
        Block block;
        Stmt* last = nullptr;
        void add(Stmt* stmt) {
            (last ? last->next : block.first) = stmt;
            last = stmt;
        }
    };

    // Foundation
    void advance();
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
    [[nodiscard]] Symbol symbolOf(const Token&);
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
    void endFor(const Expr* variable);
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
    const Expr* expression() { return binary(0); }
    const Expr* binary(int minPower);
    const Expr* binaryRest(const Expr* left, int minPower);
    const Expr* operand();
    const Expr* keywordOperand();
    const Expr* prefix(Operator, int power);
    const Expr* literal();
    const Expr* stringLiteral();
    const Expr* dateLiteral();
    const Expr* parenthesized();
    const Expr* typeOf();
    const Expr* name();
    const Expr* withMember();
    const Expr* member(const Expr* base);
    const Expr* postfix(const Expr* base, bool callee);
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

    /// Names that the grammar itself must know.
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
    std::size_t errorsBefore_ = 0; // when the statement began: it reports only once
    bool lineStart_ = true;        // nothing but blanks stands before the token
    bool strayReported_ = false;   // one report for a run of statements outside a procedure
    bool nextGoesOn_ = false;      // after the comma of `Next a, b`
    bool cutShort_ = false;        // a block ended with its surroundings: the token belongs to them
    bool inReDim_ = false;
    Pos unclosedAt_ = ~Pos{0}; // the token that revealed an unclosed block: reported once
    int depth_ = 0;
    int statementDepth_ = 0;
    std::vector<OpenBlock> blocks_;
    std::array<unsigned, kBlockKinds> openCount_{};
    Scratch scratch_;
};

/// The head of a block: after an error in it the body is read all the same, so that its end is no second error.
template <class F>
void Parser::head(F&& parseHead) {
    try {
        parseHead();
        expectEndOfStatement();
    } catch (const SyntaxError&) { recover(); }
}

} // namespace qltoolkit
