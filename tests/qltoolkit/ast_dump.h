#pragma once
// Prints syntax trees as S-expressions for the parser's tests.
#include "Components/QLToolkit/check.h"
#include "Components/QLToolkit/parser/ast.h"
#include <charconv>
#include <fmt/format.h>
#include <string>

namespace qltoolkit::dump {

class Dumper {
public:
    Dumper(const SourceText& source, const SymbolTable& symbols) : source_(source), symbols_(symbols) {}

    std::string module(const Module& m) const {
        std::string text;
        for (const Decl* d = m.declarations; d; d = d->next) join(text, decl(*d));
        return text;
    }

    std::string block(const Block& b) const {
        std::string text;
        for (const Stmt* s = b.first; s; s = s->next) join(text, stmt(*s));
        return text;
    }

private:
    static void join(std::string& text, std::string_view part) {
        if (!text.empty() && !part.empty()) text += ' ';
        text += part;
    }
    template <class... Parts>
    static std::string list(std::string_view head, const Parts&... parts) {
        std::string text(head);
        (join(text, parts), ...);
        return "(" + text + ")";
    }
    template <class T, class F>
    static std::string each(const Span<T>& items, F&& show) {
        std::string text;
        for (const T& item : items) join(text, show(item));
        return text;
    }
    std::string braces(const Block& b) const { return "{" + block(b) + "}"; }

    std::string name(Symbol s, TypeSuffix suffix = 0) const {
        std::string text(symbols_.spelling(s));
        if (suffix) text += suffix;
        return text;
    }
    static std::string real(double d) {
        char buffer[40];
        return {buffer, std::to_chars(buffer, buffer + sizeof buffer, d).ptr};
    }

    static std::string_view operatorText(Operator op) {
        static constexpr std::string_view kTexts[] = {
            "^", "neg", "plus", "*",  "/",    "\\", "mod", "+",   "-",  "&",   "=",   "<>",
            "<", "<=",  ">",    ">=", "like", "is", "not", "and", "or", "xor", "eqv", "imp"};
        return kTexts[static_cast<std::size_t>(op)];
    }

    std::string type(const TypeRef* t) const {
        if (!t) return {};
        static constexpr std::string_view kNames[] = {"Boolean",  "Byte", "Integer", "Long",    "Single", "Double",
                                                      "Currency", "Date", "String",  "Variant", "Object", "Any"};
        std::string text = t->isNew ? "new:" : "";
        if (t->kind == TypeKind::FixedString)
            text += "String*" + expr(t->length);
        else if (t->kind != TypeKind::Named)
            text += kNames[static_cast<std::size_t>(t->kind)];
        else
            text += (t->library != Symbol::None ? name(t->library) + "." : "") + name(t->name);
        return text + (t->isArray ? "()" : "");
    }
    std::string as(const TypeRef* t) const { return t ? ":" + type(t) : ""; }

    std::string argument(const Argument& a) const {
        std::string text = a.name != Symbol::None ? name(a.name) + ":=" : "";
        const std::string value = a.value ? expr(a.value) : "_";
        return text + (a.byVal ? list("byval", value) : value);
    }
    std::string arguments(const Span<Argument>& a) const {
        return each(a, [&](const Argument& x) { return argument(x); });
    }

public:
    std::string expr(const Expr* e) const {
        if (!e) return "_";
        switch (e->kind) {
        case ExprKind::Integer: return std::to_string(qltoolkit::as<IntegerExpr>(*e).value);
        case ExprKind::Long: return std::to_string(qltoolkit::as<IntegerExpr>(*e).value) + "&";
        case ExprKind::Currency: return std::to_string(qltoolkit::as<IntegerExpr>(*e).value) + "/10000";
        case ExprKind::Single: return real(qltoolkit::as<FloatExpr>(*e).value) + "!";
        case ExprKind::Double: return real(qltoolkit::as<FloatExpr>(*e).value) + "#";
        case ExprKind::Date: return "#" + real(qltoolkit::as<FloatExpr>(*e).value) + "#";
        case ExprKind::String: return '"' + stringValue(source_, qltoolkit::as<StringExpr>(*e)) + '"';
        case ExprKind::Boolean: return e->detail ? "True" : "False";
        case ExprKind::Empty: return "Empty";
        case ExprKind::Null: return "Null";
        case ExprKind::Nothing: return "Nothing";
        case ExprKind::Me: return "Me";
        case ExprKind::Name: return name(qltoolkit::as<NameExpr>(*e).name, e->suffix());
        case ExprKind::Member: return member(".", qltoolkit::as<MemberExpr>(*e));
        case ExprKind::Bang: return member("!", qltoolkit::as<MemberExpr>(*e));
        case ExprKind::Index:
            return list("call", expr(qltoolkit::as<IndexExpr>(*e).callee),
                        arguments(qltoolkit::as<IndexExpr>(*e).arguments));
        case ExprKind::Paren: return list("paren", expr(qltoolkit::as<UnaryExpr>(*e).operand));
        case ExprKind::Unary: return list(operatorText(e->op()), expr(qltoolkit::as<UnaryExpr>(*e).operand));
        case ExprKind::Binary:
            return list(operatorText(e->op()), expr(qltoolkit::as<BinaryExpr>(*e).left),
                        expr(qltoolkit::as<BinaryExpr>(*e).right));
        case ExprKind::New: return list("new", type(qltoolkit::as<NewExpr>(*e).type));
        case ExprKind::TypeOf:
            return list("typeof", expr(qltoolkit::as<TypeOfExpr>(*e).operand),
                        type(qltoolkit::as<TypeOfExpr>(*e).type));
        case ExprKind::AddressOf: return list("addressof", expr(qltoolkit::as<UnaryExpr>(*e).operand));
        case ExprKind::Coordinates: return coordinates(qltoolkit::as<CoordinatesExpr>(*e));
        case ExprKind::Range: return "RANGE";
        }
        return "?";
    }

private:
    std::string member(std::string_view sign, const MemberExpr& m) const {
        const std::string own = name(m.name, m.suffix());
        return m.base ? list(sign, expr(m.base), own) : list(sign, own);
    }
    std::string coordinates(const CoordinatesExpr& c) const {
        return list("at", c.step1 ? "step" : "", c.x1 ? expr(c.x1) + "," + expr(c.y1) : "", c.x2 ? "to" : "",
                    c.step2 ? "step" : "", c.x2 ? expr(c.x2) + "," + expr(c.y2) : "");
    }

    std::string target(const Target& t) const {
        return t.name != Symbol::None ? name(t.name) : std::to_string(t.number);
    }
    std::string bounds(const Span<Bound>& b) const {
        const auto text =
            each(b, [&](const Bound& x) { return x.lower ? expr(x.lower) + ".." + expr(x.upper) : expr(x.upper); });
        return "[" + text + "]";
    }
    std::string variable(const Variable& v) const {
        return (v.withEvents ? "withevents:" : "") + name(v.name, v.suffix) + (v.isArray ? bounds(v.bounds) : "") +
               as(v.type);
    }
    std::string variables(const Span<Variable>& v) const {
        return each(v, [&](const Variable& x) { return variable(x); });
    }
    std::string constants(const Span<Constant>& c) const {
        return each(c, [&](const Constant& x) {
            return name(x.name, x.suffix) + as(x.type) + (x.value ? "=" + expr(x.value) : "");
        });
    }
    std::string exprs(const Span<const Expr*>& e) const {
        return each(e, [&](const Expr* x) { return expr(x); });
    }
    std::string items(const Span<PrintItem>& p) const {
        return each(p, [&](const PrintItem& x) {
            static constexpr std::string_view kSigns[] = {"", ";", ","};
            return (x.value ? expr(x.value) : "") + std::string(kSigns[static_cast<std::size_t>(x.separator)]);
        });
    }
    std::string caseItem(const CaseItem& c) const {
        static constexpr std::string_view kTests[] = {"", "<>", "<", "<=", ">", ">="};
        if (c.test == CaseTest::Range) return expr(c.value) + ".." + expr(c.to);
        return std::string(kTests[static_cast<std::size_t>(c.test)]) + expr(c.value);
    }
    static std::string_view test(LoopTest t) {
        return t == LoopTest::While ? "while" : t == LoopTest::Until ? "until" : "";
    }
    template <class T>
    static const T& st(const Stmt& s) {
        return qltoolkit::as<T>(s);
    }

    std::string stmt(const Stmt& s) const {
        switch (s.kind) {
        case StmtKind::Label: return list("label", target(st<TargetStmt>(s).target));
        case StmtKind::LineNumber: return list("line", target(st<TargetStmt>(s).target));
        case StmtKind::Let: return assign(st<AssignStmt>(s).explicitLet ? "Let" : "let", st<AssignStmt>(s));
        case StmtKind::Set: return assign("set", st<AssignStmt>(s));
        case StmtKind::LSet: return assign("lset", st<AssignStmt>(s));
        case StmtKind::RSet: return assign("rset", st<AssignStmt>(s));
        case StmtKind::MidAssign: {
            const auto& m = st<MidAssignStmt>(s);
            return list(m.bytes ? "midb" : "mid", expr(m.target), expr(m.start), expr(m.length), expr(m.value));
        }
        case StmtKind::Call: return list(st<CallStmt>(s).explicitCall ? "Do" : "do", expr(st<CallStmt>(s).call));
        case StmtKind::Local:
            return list(st<LocalStmt>(s).isStatic ? "static" : "dim", variables(st<LocalStmt>(s).variables));
        case StmtKind::LocalConst: return list("const", constants(st<LocalConstStmt>(s).constants));
        case StmtKind::ReDim: return reDim(st<ReDimStmt>(s));
        case StmtKind::Erase: return list("erase", exprs(st<ListStmt>(s).items));
        case StmtKind::If: return ifText(st<IfStmt>(s));
        case StmtKind::Select: return select(st<SelectStmt>(s));
        case StmtKind::For: {
            const auto& f = st<ForStmt>(s);
            return list("for", expr(f.variable), expr(f.from), expr(f.to), f.step ? expr(f.step) : "", braces(f.body));
        }
        case StmtKind::ForEach:
            return list("each", expr(st<ForEachStmt>(s).variable), expr(st<ForEachStmt>(s).in),
                        braces(st<ForEachStmt>(s).body));
        case StmtKind::Do: return doText(st<DoStmt>(s));
        case StmtKind::While: return list("while", expr(st<BodyStmt>(s).value), braces(st<BodyStmt>(s).body));
        case StmtKind::With: return list("with", expr(st<BodyStmt>(s).value), braces(st<BodyStmt>(s).body));
        case StmtKind::GoTo: return list("goto", target(st<TargetStmt>(s).target));
        case StmtKind::GoSub: return list("gosub", target(st<TargetStmt>(s).target));
        case StmtKind::Return: return "(return)";
        case StmtKind::OnGoTo: return onJump("on-goto", st<OnJumpStmt>(s));
        case StmtKind::OnGoSub: return onJump("on-gosub", st<OnJumpStmt>(s));
        case StmtKind::OnErrorGoTo: return list("on-error", target(st<TargetStmt>(s).target));
        case StmtKind::OnErrorResumeNext: return "(on-error-next)";
        case StmtKind::OnErrorOff: return "(on-error-off)";
        case StmtKind::OnErrorClear: return "(on-error-clear)";
        case StmtKind::Resume: return list("resume", target(st<TargetStmt>(s).target));
        case StmtKind::ResumeNext: return "(resume-next)";
        case StmtKind::ExitSub: return "(exit-sub)";
        case StmtKind::ExitFunction: return "(exit-function)";
        case StmtKind::ExitProperty: return "(exit-property)";
        case StmtKind::ExitDo: return "(exit-do)";
        case StmtKind::ExitFor: return "(exit-for)";
        case StmtKind::End: return "(end)";
        case StmtKind::Stop: return "(stop)";
        case StmtKind::RaiseEvent:
            return list("raise", name(st<RaiseEventStmt>(s).name), arguments(st<RaiseEventStmt>(s).arguments));
        case StmtKind::Print: return list("print", expr(st<PrintStmt>(s).target), items(st<PrintStmt>(s).items));
        case StmtKind::PrintFile: return list("print#", expr(st<PrintStmt>(s).target), items(st<PrintStmt>(s).items));
        case StmtKind::WriteFile: return list("write#", expr(st<PrintStmt>(s).target), items(st<PrintStmt>(s).items));
        case StmtKind::Open: return open(st<OpenStmt>(s));
        case StmtKind::Close: return list("close", exprs(st<ListStmt>(s).items));
        case StmtKind::InputFile: return list("input#", exprs(st<ListStmt>(s).items));
        case StmtKind::Get: return file("get", st<FileStmt>(s), 3);
        case StmtKind::Put: return file("put", st<FileStmt>(s), 3);
        case StmtKind::Seek: return file("seek", st<FileStmt>(s), 2);
        case StmtKind::Lock: return file("lock", st<FileStmt>(s), 3);
        case StmtKind::Unlock: return file("unlock", st<FileStmt>(s), 3);
        case StmtKind::LineInput: return file("line-input#", st<FileStmt>(s), 2);
        case StmtKind::Width: return file("width#", st<FileStmt>(s), 2);
        case StmtKind::NameAs: return file("name", st<FileStmt>(s), 2);
        }
        return "?";
    }

    std::string assign(std::string_view head, const AssignStmt& a) const {
        return list(head, expr(a.target), expr(a.value));
    }
    std::string onJump(std::string_view head, const OnJumpStmt& o) const {
        return list(head, expr(o.value), each(o.targets, [&](const Target& t) { return target(t); }));
    }
    std::string file(std::string_view head, const FileStmt& f, int parts) const {
        return list(head, expr(f.first), expr(f.second), parts == 3 ? expr(f.third) : "");
    }
    std::string reDim(const ReDimStmt& r) const {
        return list(r.preserve ? "redim-preserve" : "redim",
                    each(r.items, [&](const ReDimItem& i) { return expr(i.target) + bounds(i.bounds) + as(i.type); }));
    }
    std::string ifText(const IfStmt& i) const {
        return list(i.singleLine ? "if1" : "if", each(i.branches, [&](const IfBranch& b) {
                        return (b.condition ? expr(b.condition) : "else") + " " + braces(b.body);
                    }));
    }
    std::string select(const SelectStmt& s) const {
        return list("select", expr(s.value), s.before.first ? braces(s.before) : "",
                    each(s.branches, [&](const CaseBranch& b) {
                        const auto tests = each(b.items, [&](const CaseItem& c) { return caseItem(c); });
                        return list("case", b.items.empty() ? "else" : tests, braces(b.body));
                    }));
    }
    std::string doText(const DoStmt& d) const {
        const std::string condition = d.condition ? expr(d.condition) : "";
        const bool head = d.head != LoopTest::None, foot = d.foot != LoopTest::None;
        return list("loop", test(d.head), head ? condition : "", braces(d.body), test(d.foot), foot ? condition : "");
    }
    std::string open(const OpenStmt& o) const {
        static constexpr std::string_view kModes[] = {"random", "input", "output", "append", "binary"};
        static constexpr std::string_view kAccess[] = {"", "read", "write", "readwrite"};
        static constexpr std::string_view kLocks[] = {"", "shared", "lock-read", "lock-write", "lock-readwrite"};
        return list("open", expr(o.path), kModes[static_cast<std::size_t>(o.mode)],
                    kAccess[static_cast<std::size_t>(o.access)], kLocks[static_cast<std::size_t>(o.lock)],
                    expr(o.number), o.recordLength ? expr(o.recordLength) : "");
    }

    // ---------------------------------------------------------------- declarations

    static std::string visible(const Decl& d, std::string_view head) {
        static constexpr std::string_view kWords[] = {"", "private:", "public:", "friend:", "global:"};
        return std::string(kWords[static_cast<std::size_t>(d.visibility)]) + std::string(head);
    }
    std::string parameter(const Parameter& p) const {
        static constexpr std::string_view kPassing[] = {"", "byval:", "byref:"};
        return (p.optional ? "optional:" : "") + std::string(kPassing[static_cast<std::size_t>(p.passing)]) +
               (p.paramArray ? "paramarray:" : "") + name(p.name, p.suffix) + (p.isArray ? "[]" : "") + as(p.type) +
               (p.defaultValue ? "=" + expr(p.defaultValue) : "");
    }
    std::string parameters(const Span<Parameter>& p) const {
        return "[" + each(p, [&](const Parameter& x) { return parameter(x); }) + "]";
    }
    std::string signature(const Signature& s) const {
        static constexpr std::string_view kKinds[] = {"sub", "function", "get", "let", "set"};
        return std::string(kKinds[static_cast<std::size_t>(s.kind)]) + " " + name(s.name, s.suffix) +
               parameters(s.parameters) + as(s.result);
    }
    template <class T>
    static const T& de(const Decl& d) {
        return qltoolkit::as<T>(d);
    }

    std::string decl(const Decl& d) const {
        switch (d.kind) {
        case DeclKind::OptionExplicit: return "(option explicit)";
        case DeclKind::OptionBase: return list("option", "base", std::to_string(de<OptionBaseDecl>(d).base));
        case DeclKind::OptionCompareText: return "(option compare text)";
        case DeclKind::OptionCompareBinary: return "(option compare binary)";
        case DeclKind::OptionCompareDatabase: return "(option compare database)";
        case DeclKind::OptionPrivateModule: return "(option private module)";
        case DeclKind::DefType: return defType(de<DefTypeDecl>(d));
        case DeclKind::Implements: return list("implements", type(de<ImplementsDecl>(d).type));
        case DeclKind::Variables: return list(visible(d, "dim"), variables(de<VariablesDecl>(d).variables));
        case DeclKind::Constants: return list(visible(d, "const"), constants(de<ConstantsDecl>(d).constants));
        case DeclKind::Type:
            return list(visible(d, "type"), name(de<TypeDecl>(d).name), variables(de<TypeDecl>(d).members));
        case DeclKind::Enum:
            return list(visible(d, "enum"), name(de<EnumDecl>(d).name), constants(de<EnumDecl>(d).members));
        case DeclKind::Declare: {
            const auto& x = de<DeclareDecl>(d);
            return list(visible(d, "declare"), signature(x.signature), expr(x.library), x.alias ? expr(x.alias) : "");
        }
        case DeclKind::Event:
            return list(visible(d, "event"), name(de<EventDecl>(d).name) + parameters(de<EventDecl>(d).parameters));
        case DeclKind::Procedure: {
            const auto& p = de<ProcedureDecl>(d);
            return list(visible(d, p.isStatic ? "static:" : "") + signature(p.signature), braces(p.body));
        }
        case DeclKind::Attribute: {
            const auto& a = de<AttributeDecl>(d);
            std::string path;
            for (const Symbol s : a.path) path += name(s) + ".";
            return list("attribute", path + name(a.name), exprs(a.values));
        }
        }
        return "?";
    }
    std::string defType(const DefTypeDecl& d) const {
        TypeRef t{};
        t.kind = d.type;
        std::string letters;
        for (int i = 0; i < 26; ++i)
            if (d.letters >> i & 1) letters += static_cast<char>('A' + i);
        return list("def", type(&t), letters);
    }

    const SourceText& source_;
    const SymbolTable& symbols_;
};

/// A parsed text with its source and symbols.
struct Parsed {
    explicit Parsed(std::string text, std::string name = "Test.bas", const ConditionalConstants& constants = {},
                    const basic::CodePage& page = basic::CodePage::windows1252())
        : source(std::move(name), std::move(text), page), result(parseModule(source, symbols, constants)) {}

    /// Returns "line:column number" of each diagnostic, separated by blanks.
    std::string diagnostics() const {
        std::string text;
        for (const auto& d : result.diagnostics)
            text += fmt::format("{}{}:{} {}", text.empty() ? "" : " ", d.line, d.column, d.number);
        return text;
    }
    std::string module() const { return result.module ? Dumper{source, symbols}.module(*result.module) : "no module"; }
    /// Returns the statements of the first procedure.
    std::string body() const {
        for (const Decl* d = result.module ? result.module->declarations : nullptr; d; d = d->next)
            if (d->kind == DeclKind::Procedure) return Dumper{source, symbols}.block(as<ProcedureDecl>(*d).body);
        return "no procedure";
    }

    SourceText source;
    SymbolTable symbols;
    ParseResult result;
};

/// Returns the dump of a module, or its errors if there are any.
inline std::string declarations(const std::string& text) {
    const Parsed parsed{text};
    return parsed.result.diagnostics.empty() ? parsed.module() : parsed.diagnostics();
}
/// Returns the dump of statements in a procedure, or their errors. The first statement is on line 2.
inline std::string statements(const std::string& text) {
    const Parsed parsed{"Sub Test()\n" + text + "\nEnd Sub\n"};
    return parsed.result.diagnostics.empty() ? parsed.body() : parsed.diagnostics();
}
/// Returns the dump of an expression.
inline std::string expression(const std::string& text) {
    const std::string dumped = statements("v = " + text);
    return dumped.starts_with("(let v ") ? dumped.substr(7, dumped.size() - 8) : dumped;
}

/// A source text and its expected dump.
struct Pair {
    const char* source;
    const char* dump;
};

} // namespace qltoolkit::dump
