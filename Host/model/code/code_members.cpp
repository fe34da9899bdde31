#include "Host/model/code/code_members.h"
#include "Basic/case_folding.h"
#include "Host/files/code_file.h"
#include "Host/files/text_parts.h"
#include <set>

namespace host {
namespace {

using Procedure = CodeOutline::Procedure;
using Words = std::vector<std::string_view>;

bool isNameCharacter(char c) noexcept {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_' || (c & 0x80);
}

bool isWord(std::string_view word, std::string_view keyword) noexcept { return basic::equalNoCase(word, keyword); }

/// The next word or single sign; empty at the end and at a comment.
std::string_view takeWord(std::string_view& rest) noexcept {
    rest = trimBlanks(rest);
    if (rest.empty() || rest.front() == '\'') return rest = {};
    std::size_t length = 0;
    if (rest.front() == '[') {
        length = std::min(rest.size(), rest.find(']'));
        const auto name = rest.substr(1, length - 1);
        rest.remove_prefix(std::min(rest.size(), length + 1));
        return name;
    }
    if (rest.front() == '"') {
        length = std::min(rest.size(), rest.find('"', 1));
        length = std::min(rest.size(), length + 1);
    } else {
        while (length < rest.size() && isNameCharacter(rest[length])) ++length;
        if (length == 0) length = 1;
    }
    const auto word = rest.substr(0, length);
    rest.remove_prefix(length);
    return word;
}

/// Statements over lines: continued lines joined, with the line where each begins.
class StatementReader {
public:
    explicit StatementReader(const CodeText& code) : code_(code), count_(code.count()) {}

    bool next() {
        if (line_ >= count_) return false;
        first_ = line_ + 1;
        text_ = code_.line(++line_);
        while (endsContinued(text_) && line_ < count_) {
            text_.pop_back();
            text_ += code_.line(++line_);
        }
        return true;
    }
    int first() const { return int(first_); }
    int last() const { return int(line_); }
    std::string_view text() const { return text_; }

private:
    static bool endsContinued(std::string_view text) noexcept {
        return text.size() >= 2 && text.back() == '_' &&
               (text[text.size() - 2] == ' ' || text[text.size() - 2] == '\t');
    }

    const CodeText& code_;
    std::size_t count_, line_ = 0, first_ = 0;
    std::string text_;
};

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
        lastBefore_ = statements_.last();
        if (outline_.procedures.empty()) outline_.declarationLines = lastBefore_;
    }

    static bool isProcedureWord(std::string_view word) noexcept {
        return isWord(word, "Sub") || isWord(word, "Function") || isWord(word, "Property");
    }

    /// False when the statement is the head of a procedure.
    bool declaration(std::string_view word, std::string_view rest) {
        vbide::Member member;
        member.CodeLocation = statements_.first();
        member.Scope = 1;
        bool scoped = false;
        for (;; word = takeWord(rest)) {
            if (isWord(word, "Public") || isWord(word, "Global"))
                member.Scope = 2, scoped = true;
            else if (isWord(word, "Private") || isWord(word, "Dim"))
                member.Scope = 1, scoped = true;
            else if (isWord(word, "Friend"))
                member.Scope = 3, scoped = true;
            else if (isWord(word, "Static"))
                member.Static = true;
            else
                break;
        }
        if (isProcedureWord(word)) {
            if (!scoped) member.Scope = 2;
            procedureHead(word, rest, member);
            return false;
        }
        if (isWord(word, "Enum") || isWord(word, "Type"))
            inBlock_ = true;
        else if (isWord(word, "Declare"))
            declare(rest, member, scoped);
        else if (isWord(word, "Event"))
            add(member, vbide::Member::Event, takeWord(rest), 2);
        else if (isWord(word, "Const"))
            names(vbide::Member::Const, rest, member);
        else if (scoped)
            variables(word, rest, member);
        return true;
    }

    void declare(std::string_view rest, vbide::Member member, bool scoped) {
        takeWord(rest); // Sub or Function
        add(member, vbide::Member::Method, takeWord(rest), scoped ? member.Scope : 2);
    }

    void variables(std::string_view word, std::string_view rest, const vbide::Member& member) {
        if (isWord(word, "WithEvents")) word = takeWord(rest);
        add(member, vbide::Member::Variable, word, member.Scope);
        if (skipToComma(rest)) names(vbide::Member::Variable, rest, member);
    }

    void names(vbide::Member::Type type, std::string_view rest, const vbide::Member& member) {
        do {
            auto word = takeWord(rest);
            if (isWord(word, "WithEvents")) word = takeWord(rest);
            add(member, type, word, member.Scope);
        } while (skipToComma(rest));
    }

    /// Moves behind the next comma that stands in no parentheses; false when there is none.
    static bool skipToComma(std::string_view& rest) noexcept {
        int depth = 0;
        for (auto word = takeWord(rest); !word.empty(); word = takeWord(rest)) {
            if (word == "(") ++depth;
            if (word == ")") --depth;
            if (word == ":" && depth == 0) return false;
            if (word == "," && depth == 0) return true;
        }
        return false;
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
        procedure.body = statements_.first();
        const bool isProperty = procedure.kind != vbide::vbext_pk_Proc;
        if (!isProperty || properties_.insert(basic::foldCase(procedure.name)).second)
            add(std::move(member), isProperty ? vbide::Member::Property : vbide::Member::Method, procedure.name,
                member.Scope);
        outline_.procedures.push_back(std::move(procedure));
        inProcedure_ = !endsOnItsLine(rest);
        if (!inProcedure_) endProcedure();
    }

    static vbide::vbext_ProcKind propertyKind(std::string_view word) noexcept {
        if (isWord(word, "Let")) return vbide::vbext_pk_Let;
        return isWord(word, "Set") ? vbide::vbext_pk_Set : vbide::vbext_pk_Get;
    }

    /// "Sub A(): x: End Sub" on one line.
    static bool endsOnItsLine(std::string_view rest) noexcept {
        bool begins = false;
        for (auto word = takeWord(rest); !word.empty(); word = takeWord(rest)) {
            if (begins && isWord(word, "End") && isProcedureWord(takeWord(rest))) return true;
            begins = word == ":";
        }
        return false;
    }

    void endProcedure() {
        inProcedure_ = false;
        lastBefore_ = outline_.procedures.back().end = statements_.last();
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
