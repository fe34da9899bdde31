// Files that are parsed side by side.
#include "Components/QLToolkit/parser/parse_all.h"
#include "Components/QLToolkit/parser/tree_walk.h"
#include "tests/qltoolkit/ast_dump.h"
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <iterator>
#include <set>

using namespace qltoolkit;

namespace {

using Sources = std::vector<std::unique_ptr<SourceText>>;

// The seeds of the parser's fuzz target have every kind of statement.
Sources seeds() {
    std::vector<std::filesystem::path> paths;
    for (const auto& entry : std::filesystem::directory_iterator(FERNWICK_SOURCE_DIR "/fuzz/corpus/parser"))
        paths.push_back(entry.path());
    std::sort(paths.begin(), paths.end());
    Sources sources;
    for (const auto& path : paths) {
        std::ifstream file(path, std::ios::binary);
        sources.push_back(std::make_unique<SourceText>(path.filename().string() + ".cls",
                                                       std::string{std::istreambuf_iterator<char>(file), {}}));
    }
    return sources;
}

Sources made(const std::vector<std::string>& texts) {
    Sources sources;
    for (const auto& text : texts)
        sources.push_back(std::make_unique<SourceText>("Test" + std::to_string(sources.size()) + ".bas", text));
    return sources;
}

std::vector<const SourceText*> pointers(const Sources& sources) {
    std::vector<const SourceText*> all;
    for (const auto& source : sources) all.push_back(source.get());
    return all;
}

std::string numberOf(Symbol symbol) { return std::to_string(static_cast<std::uint32_t>(symbol)); }

struct SymbolNumbers {
    std::string text;
    void expression(const Expr&) {}
    void symbol(const Symbol& symbol) { text += ' ' + numberOf(symbol); }
};

/// The trees with the names as text and as numbers, the messages, and the table of names.
std::vector<std::string> parsed(const Sources& sources, unsigned threads) {
    SymbolTable symbols;
    std::vector<std::string> shown;
    for (const auto& result : parseModules(pointers(sources), symbols, {}, threads)) {
        SymbolNumbers numbers;
        if (result.module) TreeWalk{numbers}.module(*result.module);
        const auto& source = *sources[shown.size()];
        shown.push_back(source.name() + (result.module ? dump::Dumper{source, symbols}.module(*result.module) : "") +
                        numbers.text + " " + std::to_string(result.errors));
        for (const auto& each : result.diagnostics) shown.back() += ' ' + std::to_string(each.line) + ':' + each.text;
    }
    for (std::size_t i = 1; i < symbols.count(); ++i)
        shown.push_back(std::to_string(i) + " " + std::string(symbols.spelling(static_cast<Symbol>(i))));
    return shown;
}

struct Places {
    std::set<const Symbol*> seen;
    bool isTwice = false;
    void expression(const Expr&) {}
    void symbol(const Symbol& symbol) { isTwice |= !seen.insert(&symbol).second; }
};

} // namespace

TEST(ParseAll, SeveralThreadsGiveTheSameTreesAndNames) {
    auto sources = seeds();
    ASSERT_GT(sources.size(), 30U);
    const auto inOrder = parsed(sources, 1);
    for (const unsigned threads : {2U, 3U, 8U}) EXPECT_EQ(parsed(sources, threads), inOrder);
    std::reverse(sources.begin(), sources.end());
    EXPECT_EQ(parsed(sources, 4), parsed(sources, 1));
}

TEST(ParseAll, EachSymbolOfATreeIsVisitedOnce) {
    for (const auto& source : seeds()) {
        SymbolTable symbols;
        const auto result = parseModule(*source, symbols);
        Places places;
        if (result.module) TreeWalk{places}.module(*result.module);
        EXPECT_FALSE(places.isTwice) << source->name();
    }
}

TEST(ParseAll, ANameHasTheSpellingOfTheFirstFile) {
    std::vector<std::string> texts(64, "Private Total, Unterschied, [a b]\r\n");
    texts.front() = "Private TOTAL, \xC4nderung, [A B]\r\n";
    texts.back() = "Private total, \xE4nderung, [A b]\r\nPrivate \xC0pfel\r\n";
    const auto sources = made(texts);
    for (const unsigned threads : {1U, 4U}) {
        SymbolTable symbols;
        const auto results = parseModules(pointers(sources), symbols, {}, threads);
        for (const auto* name : {"TOTAL", "\xC3\x84nderung", "A B", "Unterschied", "\xC3\x80pfel"})
            EXPECT_EQ(symbols.spelling(symbols.intern(name)), name);
        const auto count = symbols.count();
        for (const auto* name : {"total", "\xC3\xA4nderung", "a B", "UNTERSCHIED", "\xC3\xA0pfel"})
            symbols.intern(name);
        EXPECT_EQ(symbols.count(), count);
    }
}

TEST(ParseAll, AFileThatIsNoVbFileLeavesTheOthers) {
    const Sources sources = [] {
        auto all = made({"Private a\r\n", "Private b\r\n"});
        all.insert(all.begin() + 1, std::make_unique<SourceText>("x.frm", std::string("no form")));
        return all;
    }();
    SymbolTable symbols;
    const auto results = parseModules(pointers(sources), symbols, {}, 3);
    EXPECT_TRUE(results[0].module);
    EXPECT_FALSE(results[1].module);
    EXPECT_EQ(dump::Dumper(*sources[2], symbols).module(*results[2].module), dump::Parsed("Private b\r\n").module());
}
