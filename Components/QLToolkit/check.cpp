#include "Components/QLToolkit/check.h"
#include "Components/QLToolkit/parsed_program.h"
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

ParsedProgram check(const Sources& sources, const ConditionalConstants& constants, const ProgramOptions& options,
                    const ImageParts* wanted, std::vector<CheckResult>& results) {
    SymbolTable symbols;
    auto parsed = parseModules(sources, symbols, constants, options.threads);
    std::vector<ParsedSource> all;
    for (std::size_t i = 0; i < sources.size(); ++i) all.push_back({sources[i], &parsed[i]});
    auto program = compileParsed(all, symbols, options, wanted);
    for (std::size_t i = 0; i < sources.size(); ++i) {
        results.push_back({std::move(parsed[i].diagnostics), parsed[i].errors, sources[i]->lineCount()});
        addMessages(results.back(), std::move(program.messages[i]));
    }
    return program;
}

} // namespace

std::vector<CheckResult> checkProject(const Sources& sources, const ConditionalConstants& constants,
                                      const ProgramOptions& options) {
    std::vector<CheckResult> results;
    (void)check(sources, constants, options, nullptr, results);
    return results;
}

CompiledProject compileProject(const Sources& sources, const ConditionalConstants& constants,
                               const ProgramOptions& options, const ImageParts& parts) {
    CompiledProject compiled;
    auto program = check(sources, constants, options, &parts, compiled.results);
    compiled.code = std::move(program.code);
    compiled.entries = std::move(program.entries);
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
