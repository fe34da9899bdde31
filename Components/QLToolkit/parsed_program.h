#pragma once
// The program that a project's parsed files form.
#include "Components/Image/code/code_image.h"
#include "Components/QLToolkit/code/code_generator.h"
#include "Components/QLToolkit/names/check_program.h"
#include "Components/QLToolkit/parser/parse.h"
#include <optional>
#include <vector>

namespace qltoolkit {

/// A file that could not be read has neither text nor module.
struct ParsedSource {
    const SourceText* text;
    const ParseResult* parsed;
};

[[nodiscard]] bool isRight(const ParseResult& parsed);

struct ParsedProgram {
    ProgramMessages messages; ///< of each file, without those of the parser
    /// The header of each file whose syntax is right and that has one.
    std::vector<std::optional<image::Control>> forms;
    std::optional<image::CodeImage> code; ///< of a program without errors, if it was wanted
    std::vector<EntryPoint> entries;      ///< of its code
};

/// Checks the names and types of the files whose syntax is right, and makes the code of all if `wanted` is not null. A name
/// that a faulty file may declare is not reported.
[[nodiscard]] ParsedProgram compileParsed(const std::vector<ParsedSource>& sources, SymbolTable& symbols,
                                          ProgramOptions options, const ImageParts* wanted);

} // namespace qltoolkit
