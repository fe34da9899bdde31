#include "Components/QLToolkit/parser/parse_all.h"
#include "Components/QLToolkit/parser/rename_symbols.h"
#include "Components/QLToolkit/source/each_index.h"
#include <mutex>
#include <utility>

namespace qltoolkit {

namespace {

/// Adds the names of files to one table in the order of the files, whichever is parsed first.
class OrderedNames {
public:
    struct File {
        std::size_t index;
        std::vector<Symbol> symbols; ///< for each symbol of the file's own table
    };

    OrderedNames(SymbolTable& symbols, std::size_t count) : symbols_(symbols), waiting_(count) {}

    /// Returns the files whose turn has come.
    std::vector<File> add(std::size_t index, std::unique_ptr<SymbolTable> own) {
        const std::lock_guard lock{mutex_};
        waiting_[index] = std::move(own);
        std::vector<File> added;
        for (; next_ < waiting_.size() && waiting_[next_]; ++next_) {
            added.push_back({next_, symbols_.internAll(*waiting_[next_])});
            waiting_[next_] = nullptr;
        }
        return added;
    }

private:
    std::mutex mutex_;
    SymbolTable& symbols_;
    std::vector<std::unique_ptr<SymbolTable>> waiting_;
    std::size_t next_ = 0;
};

// Parsers that shared a table would number the names, and choose their spelling, in the order in which the threads happen
// to run. So each file has a table of its own until those before it are parsed.
std::vector<ParseResult> parseApart(const std::vector<const SourceText*>& sources, SymbolTable& symbols,
                                    const ConditionalConstants& constants, unsigned threads) {
    std::vector<ParseResult> results(sources.size());
    OrderedNames names{symbols, sources.size()};
    forEachIndex(sources.size(), threads, [&] {
        return [&](std::size_t i) {
            auto own = std::make_unique<SymbolTable>();
            results[i] = parseModule(*sources[i], *own, constants);
            for (const auto& file : names.add(i, std::move(own)))
                if (results[file.index].module) renameSymbols(*results[file.index].module, file.symbols);
        };
    });
    return results;
}

} // namespace

std::vector<ParseResult> parseModules(const std::vector<const SourceText*>& sources, SymbolTable& symbols,
                                      const ConditionalConstants& constants, unsigned threads) {
    if (threads > 1 && sources.size() > 1) return parseApart(sources, symbols, constants, threads);
    std::vector<ParseResult> results;
    for (const auto* source : sources) results.push_back(parseModule(*source, symbols, constants));
    return results;
}

} // namespace qltoolkit
