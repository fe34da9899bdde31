#include "Components/QLToolkit/parsed_program.h"
#include "Components/QLToolkit/parser/form_header.h"
#include <algorithm>

namespace qltoolkit {

namespace {

[[nodiscard]] bool hasError(const std::vector<Diagnostic>& messages) {
    return std::ranges::any_of(messages, [](const Diagnostic& each) { return each.severity == Severity::Error; });
}

} // namespace

bool isRight(const ParseResult& parsed) { return parsed.module && parsed.errors == 0; }

ParsedProgram compileParsed(const std::vector<ParsedSource>& sources, SymbolTable& symbols, ProgramOptions options,
                            const ImageParts* wanted) {
    ParsedProgram program;
    program.messages.resize(sources.size());
    program.forms.resize(sources.size());
    std::vector<ParsedModule> modules;
    std::vector<std::size_t> places; // in the program, of the modules
    for (std::size_t i = 0; i < sources.size(); ++i) {
        if (!isRight(*sources[i].parsed)) continue;
        modules.push_back({sources[i].parsed->module.get(), readFormHeader(*sources[i].text)});
        places.push_back(i);
    }
    const bool isWhole = modules.size() == sources.size();
    options.lacksFiles |= !isWhole;
    CodeGenerator generator;
    const bool makesCode = wanted && isWhole;
    const auto done = [&](ProgramMessages found) {
        const bool isRightProgram = std::ranges::none_of(found, hasError);
        for (std::size_t i = 0; i < places.size(); ++i) program.messages[places[i]] = std::move(found[i]);
        if (!makesCode || !isRightProgram) return;
        program.code = generator.link(*wanted);
        program.entries = generator.entryPoints();
    };
    checkProgram(modules, symbols, options, done, makesCode ? &generator : nullptr);
    for (std::size_t i = 0; i < places.size(); ++i) program.forms[places[i]] = std::move(modules[i].form);
    return program;
}

} // namespace qltoolkit
