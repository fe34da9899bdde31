#include "Components/QLToolkit/check.h"
#include "Components/QLToolkit/parser/form_header.h"
#include "Components/QLToolkit/parser/parse_all.h"
#include <algorithm>
#include <filesystem>
#include <tuple>

namespace qltoolkit {

namespace {

CheckResult failedCheck(Message message, const std::string& path, std::string_view detail = {}) {
    return {{fileDiagnostic(message, path, detail)}, 1, 0};
}

void addMessages(CheckResult& result, std::vector<Diagnostic> messages) {
    for (auto& diagnostic : messages) {
        result.errors += diagnostic.severity == Severity::Error;
        result.diagnostics.push_back(std::move(diagnostic));
    }
    std::stable_sort(result.diagnostics.begin(), result.diagnostics.end(),
                     [](const Diagnostic& a, const Diagnostic& b) {
                         return std::tie(a.line, a.column) < std::tie(b.line, b.column);
                     });
}

} // namespace

CheckResult checkSource(const SourceText& source, const ConditionalConstants& constants) {
    SymbolTable symbols;
    auto parsed = parseModule(source, symbols, constants);
    return {std::move(parsed.diagnostics), parsed.errors, source.lineCount()};
}

CheckResult checkSource(std::string name, std::string bytes, const ConditionalConstants& constants,
                        const basic::CodePage& page) {
    if (bytes.size() > kMaxSourceBytes) return failedCheck(Message::FileTooLarge, name);
    return checkSource(SourceText{std::move(name), std::move(bytes), page}, constants);
}

namespace {

using Sources = std::vector<const SourceText*>;

/// `finish` is called while the trees exist, if the program could be checked.
template <class Finish>
std::vector<CheckResult> check(const Sources& sources, const ConditionalConstants& constants,
                               const ProgramOptions& options, CodeSink* code, const Finish& finish) {
    SymbolTable symbols;
    auto parsed = parseModules(sources, symbols, constants, options.threads);
    std::vector<CheckResult> results;
    std::vector<ParsedModule> modules;
    std::vector<std::size_t> places; // in the results, of the modules
    for (std::size_t i = 0; i < sources.size(); ++i) {
        const bool isRight = parsed[i].module && parsed[i].errors == 0;
        results.push_back({std::move(parsed[i].diagnostics), parsed[i].errors, sources[i]->lineCount()});
        if (!isRight) continue;
        modules.push_back({parsed[i].module.get(), readFormHeader(*sources[i])});
        places.push_back(i);
    }
    const bool isWhole = modules.size() == sources.size();
    auto known = options;
    known.lacksFiles |= !isWhole;
    checkProgram(
        modules, symbols, known,
        [&](std::vector<std::vector<Diagnostic>> messages) {
            for (std::size_t i = 0; i < places.size(); ++i) addMessages(results[places[i]], std::move(messages[i]));
            finish(results);
        },
        isWhole ? code : nullptr);
    return results;
}

} // namespace

std::vector<CheckResult> checkProject(const Sources& sources, const ConditionalConstants& constants,
                                      const ProgramOptions& options) {
    return check(sources, constants, options, nullptr, [](const auto&) {});
}

CompiledProject compileProject(const Sources& sources, const ConditionalConstants& constants,
                               const ProgramOptions& options, std::string_view start, std::uint32_t codePage) {
    CodeGenerator generator;
    CompiledProject compiled;
    compiled.results = check(sources, constants, options, &generator, [&](const std::vector<CheckResult>& results) {
        const auto isRight = [](const CheckResult& result) { return result.errors == 0; };
        if (!std::all_of(results.begin(), results.end(), isRight)) return;
        compiled.code = generator.link(start, codePage);
        compiled.entries = generator.entryPoints();
    });
    return compiled;
}

CheckResult failedRead(const std::string& path, std::string_view reason) {
    std::error_code unknown;
    const auto status = std::filesystem::status(path, unknown);
    if (!std::filesystem::exists(status)) return failedCheck(Message::FileMissing, path, path);
    if (std::filesystem::is_directory(status)) return failedCheck(Message::FileIsFolder, path, path);
    if (std::filesystem::is_regular_file(status) && std::filesystem::file_size(path, unknown) > kMaxSourceBytes)
        return failedCheck(Message::FileTooLarge, path);
    return failedCheck(Message::FileUnreadable, path, reason);
}

} // namespace qltoolkit
