#include "Host/model/code/code_outline.h"
#include "Basic/case_folding.h"
#include "Host/files/code_file.h"
#include "Host/model/code/statement_reader.h"
#include <set>

namespace host {
namespace {

using Procedure = CodeOutline::Procedure;

constexpr int kPrivate = 1, kPublic = 2, kFriend = 3;

bool isWord(std::string_view word, std::string_view keyword) noexcept { return basic::equalNoCase(word, keyword); }

bool isProcedureWord(std::string_view word) noexcept {
    return isWord(word, "Sub") || isWord(word, "Function") || isWord(word, "Property");
}

vbide::vbext_ProcKind propertyKind(std::string_view word) noexcept {
    if (isWord(word, "Let")) return vbide::vbext_pk_Let;
    return isWord(word, "Set") ? vbide::vbext_pk_Set : vbide::vbext_pk_Get;
}

/// True for a whole procedure on one line: "Sub A(): x: End Sub".
bool endsOnItsLine(std::string_view rest) noexcept {
    bool begins = false;
    for (auto word = takeWord(rest); !word.empty(); word = takeWord(rest)) {
        if (begins && isWord(word, "End") && isProcedureWord(takeWord(rest))) return true;
        begins = word == ":";
    }
    return false;
}

/// Reads the modifiers before a declaration: scope into `member`, Static. Returns true if there is a scope.
bool takeModifiers(std::string_view& word, std::string_view& rest, vbide::Member& member) {
    bool scoped = false;
    const auto setScope = [&](int scope) {
        member.Scope = scope;
        scoped = true;
    };
    for (;; word = takeWord(rest)) {
        if (isWord(word, "Public") || isWord(word, "Global"))
            setScope(kPublic);
        else if (isWord(word, "Private") || isWord(word, "Dim"))
            setScope(kPrivate);
        else if (isWord(word, "Friend"))
            setScope(kFriend);
        else if (isWord(word, "Static"))
            member.Static = true;
        else
            return scoped;
    }
}

/// Removes a name with its qualifiers: "Library.Class".
std::string takeQualifiedName(std::string_view& rest) {
    std::string name(takeWord(rest));
    for (auto after = rest; takeWord(after) == "."; rest = after) name.append(".").append(takeWord(after));
    return name;
}

std::string lastPart(const std::string& name) { return name.substr(name.rfind('.') + 1); }

class OutlineBuilder {
public:
    explicit OutlineBuilder(const CodeText& code) : statements_(code), count_(int(code.count())) {}

    CodeOutline build() {
        while (statements_.next()) statement(statements_.text());
        if (inProcedure_) outline_.procedures.back().end = count_;
        return std::move(outline_);
    }

private:
    void statement(std::string_view rest) {
        auto word = takeWord(rest);
        if (word.empty() || isWord(word, "Rem")) return;
        if (inProcedure_) {
            if (isWord(word, "End") && isProcedureWord(takeWord(rest))) endProcedure();
            return;
        }
        if (inBlock_) {
            inBlock_ = !isWord(word, "End");
        } else if (!declaration(word, rest)) {
            return;
        }
        lastBefore_ = statements_.lastLine();
        if (outline_.procedures.empty()) outline_.declarationLines = lastBefore_;
    }

    /// Returns false if the statement is the head of a procedure.
    bool declaration(std::string_view word, std::string_view rest) {
        vbide::Member member;
        member.CodeLocation = statements_.firstLine();
        member.Scope = kPrivate;
        const bool scoped = takeModifiers(word, rest, member);
        if (isProcedureWord(word)) {
            if (!scoped) member.Scope = kPublic;
            procedureHead(word, rest, member);
            return false;
        }
        if (isWord(word, "Enum") || isWord(word, "Type"))
            inBlock_ = true;
        else if (isWord(word, "Declare"))
            declare(rest, member, scoped);
        else if (isWord(word, "Event"))
            add(member, vbide::Member::Event, takeWord(rest), kPublic);
        else if (isWord(word, "Const"))
            names(vbide::Member::Const, rest, member);
        else if (isWord(word, "Implements"))
            interface(takeQualifiedName(rest));
        else if (scoped)
            variables(word, rest, member);
        return true;
    }

    void declare(std::string_view rest, vbide::Member member, bool scoped) {
        takeWord(rest); // Sub or Function
        add(member, vbide::Member::Method, takeWord(rest), scoped ? member.Scope : kPublic);
    }

    void variables(std::string_view word, std::string_view rest, const vbide::Member& member) {
        takeSource(word, rest);
        add(member, vbide::Member::Variable, word, member.Scope);
        if (skipToComma(rest)) names(vbide::Member::Variable, rest, member);
    }

    void names(vbide::Member::Type type, std::string_view rest, const vbide::Member& member) {
        do {
            auto word = takeWord(rest);
            takeSource(word, rest);
            add(member, type, word, member.Scope);
        } while (skipToComma(rest));
    }

    /// Moves from WithEvents to the name that it declares.
    void takeSource(std::string_view& word, std::string_view& rest) {
        if (!isWord(word, "WithEvents")) return;
        word = takeWord(rest);
        auto after = rest;
        if (isWord(takeWord(after), "As")) source(std::string(word), takeQualifiedName(after), false);
    }

    void interface(const std::string& className) { source(lastPart(className), className, true); }

    void source(const std::string& name, const std::string& className, bool isInterface) {
        const auto isName = [](const std::string& text) { return !text.empty() && isNameCharacter(text.front()); };
        if (isName(name) && isName(className)) outline_.sources.push_back({name, className, isInterface});
    }

    void add(vbide::Member member, vbide::Member::Type type, std::string_view name, int scope) {
        if (name.empty() || !isNameCharacter(name.front())) return;
        member.type = type;
        member.Name = name;
        member.Scope = scope;
        outline_.members.push_back(std::move(member));
    }

    void procedureHead(std::string_view word, std::string_view rest, vbide::Member member) {
        Procedure procedure;
        if (isWord(word, "Property")) procedure.kind = propertyKind(takeWord(rest));
        procedure.name = takeWord(rest);
        procedure.start = lastBefore_ + 1;
        procedure.body = statements_.firstLine();
        const bool isProperty = procedure.kind != vbide::vbext_pk_Proc;
        if (!isProperty || properties_.insert(basic::foldCase(procedure.name)).second)
            add(std::move(member), isProperty ? vbide::Member::Property : vbide::Member::Method, procedure.name,
                member.Scope);
        outline_.procedures.push_back(std::move(procedure));
        inProcedure_ = !endsOnItsLine(rest);
        if (!inProcedure_) endProcedure();
    }

    void endProcedure() {
        inProcedure_ = false;
        lastBefore_ = outline_.procedures.back().end = statements_.lastLine();
    }

    StatementReader statements_;
    int count_;
    CodeOutline outline_;
    std::set<std::string> properties_;
    bool inProcedure_ = false, inBlock_ = false;
    int lastBefore_ = 0;
};

} // namespace

CodeOutline outlineOf(const CodeText& code) { return OutlineBuilder(code).build(); }

} // namespace host
