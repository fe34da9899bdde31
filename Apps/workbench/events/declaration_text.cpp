#include "Apps/workbench/events/declaration_text.h"
#include "Basic/case_folding.h"
#include "Host/model/code/statement_reader.h"
#include <algorithm>
#include <string_view>
#include <utility>

namespace workbench {

namespace {

bool isContinued(const std::string& line) {
    return line.size() >= 2 && line.back() == '_' && (line[line.size() - 2] == ' ' || line[line.size() - 2] == '\t');
}

/// What the character after a name without "As" says about its type.
std::string_view typeOfSuffix(std::string_view suffix) {
    constexpr std::pair<char, std::string_view> kTypes[] = {{'%', "Integer"}, {'&', "Long"},     {'!', "Single"},
                                                            {'#', "Double"},  {'@', "Currency"}, {'$', "String"}};
    for (const auto& [sign, type] : kTypes)
        if (suffix == std::string_view(&sign, 1)) return type;
    return {};
}

/// Removes the text up to the parenthesis that closes an open one, with it. Returns the text without it.
std::string_view takeParameters(std::string_view& rest) {
    const auto all = rest;
    int depth = 1;
    for (auto word = host::takeWord(rest); !word.empty(); word = host::takeWord(rest)) {
        if (word == "(") ++depth;
        if (word == ")" && --depth == 0) return all.substr(0, std::size_t(word.data() - all.data()));
    }
    return all;
}

/// The type after "As", with its qualifier and the parentheses of an array, without "New".
std::string typeAfterAs(std::string_view rest) {
    std::string type;
    for (auto word = host::takeWord(rest); !word.empty() && word != ":" && word != "," && word != "=";
         word = host::takeWord(rest))
        if (!basic::equalNoCase(word, "New")) type += word;
    return type;
}

} // namespace

std::string statementAt(vbide::CodeModule& module, int line) {
    std::string statement;
    for (const int last = module.CountOfLines(); line <= last; ++line) {
        auto text = module.Lines(line, 1);
        const auto end = text.find_last_not_of(" \t");
        text.resize(end == std::string::npos ? 0 : end + 1);
        statement += text;
        if (!isContinued(text)) break;
        statement.pop_back();
    }
    std::replace(statement.begin(), statement.end(), '\t', ' ');
    const auto blanks = [](char a, char b) { return a == ' ' && b == ' '; };
    statement.erase(std::unique(statement.begin(), statement.end(), blanks), statement.end());
    return statement;
}

DeclaredHead headOf(const std::string& statement, const std::string& name) {
    DeclaredHead head;
    std::string_view rest = statement;
    auto word = host::takeWord(rest);
    for (; !word.empty() && !basic::equalNoCase(word, name); word = host::takeWord(rest)) head.keyword = word;
    word = host::takeWord(rest);
    if (const auto type = typeOfSuffix(word); !type.empty()) {
        head.result = " As " + std::string(type);
        word = host::takeWord(rest);
    }
    if (word == "(") {
        head.parameters = takeParameters(rest);
        word = host::takeWord(rest);
    }
    if (basic::equalNoCase(word, "As")) head.result = " As " + typeAfterAs(rest);
    return head;
}

} // namespace workbench
