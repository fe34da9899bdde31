#include "Components/QLToolkit/insight/code_words.h"
#include "Basic/case_folding.h"
#include "Components/QLToolkit/insight/name_uses.h"
#include "Components/QLToolkit/lexer/lexer.h"
#include "Components/QLToolkit/names/lookup.h"
#include <algorithm>

namespace qltoolkit {

namespace {

class WordSearch {
public:
    WordSearch(const SourceText& source, std::string_view name)
        : source_(source), name_(name), diagnostics_(source), lexer_(source, diagnostics_) {
        isAscii_ = std::all_of(name.begin(), name.end(), [](char c) { return c >= 0; });
        lexer_.quiet(true);
    }

    std::vector<CodeWord> run() {
        auto before = TokenKind::EndOfLine;
        for (Token token; lexer_.next(token), token.kind != TokenKind::EndOfFile; before = token.kind) {
            if (token.kind == TokenKind::Directive) skipLine(token);
            if (!token.isWord()) continue;
            if (token.keyword == Keyword::Rem && endsStatement(before))
                lexer_.skipComment();
            else
                add(token, before);
        }
        return std::move(found_);
    }

private:
    static bool endsStatement(TokenKind kind) { return kind == TokenKind::EndOfLine || kind == TokenKind::Colon; }

    void skipLine(Token& token) {
        while (token.kind != TokenKind::EndOfLine && token.kind != TokenKind::EndOfFile) lexer_.next(token);
    }

    void add(const Token& token, TokenKind before) {
        const auto [begin, end] = extentOfName(source_, token.begin);
        const auto text = source_.text(begin, end);
        if (!(isAscii_ ? basic::equalNoCase(text, name_) : basic::equalNoCase(source_.decode(text), name_))) return;
        const bool isMember = before == TokenKind::Dot || before == TokenKind::Bang;
        found_.push_back({begin, end, isMember, lexer_.assignsByName(token)});
    }

    const SourceText& source_;
    std::string_view name_;
    Diagnostics diagnostics_;
    Lexer lexer_;
    bool isAscii_ = false;
    std::vector<CodeWord> found_;
};

} // namespace

std::vector<CodeWord> wordsLike(const SourceText& source, std::string_view name) {
    return WordSearch{source, name}.run();
}

} // namespace qltoolkit
