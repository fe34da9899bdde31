#include "Components/QLToolkit/parser/parse.h"
#include "Components/QLToolkit/parser/parser.h"

namespace qltoolkit {

namespace {

bool hasDesigner(FileKind kind) { return kind >= FileKind::Form; }

// Returns false if the file should not be parsed.
bool checkShape(const SourceText& source, Diagnostics& diagnostics) {
    if (source.isBinary()) {
        diagnostics.reportFile(Message::FileBinary);
        return false;
    }
    if (source.kind() == FileKind::Unknown) {
        diagnostics.reportFile(Message::FileKindUnknown);
        return false;
    }
    if (source.header() == HeaderState::Missing && hasDesigner(source.kind())) {
        diagnostics.reportFile(Message::FileNotVb);
        return false;
    }
    if (source.header() == HeaderState::Unclosed) {
        diagnostics.report(Message::HeaderUnclosed, source.lineStart(source.headerBlock()));
        return false;
    }
    if (source.header() == HeaderState::TooDeep) {
        diagnostics.report(Message::HeaderTooDeep, source.lineStart(source.headerBlock()));
        return false;
    }
    const bool noHead = source.header() == HeaderState::Missing && source.attributesBegin() == source.codeBegin();
    if (noHead && source.kind() == FileKind::Class) diagnostics.reportFile(Message::HeaderMissing);
    return true;
}

} // namespace

ParseResult parseModule(const SourceText& source, SymbolTable& symbols, const ConditionalConstants& constants) {
    ParseResult result;
    Diagnostics diagnostics{source};
    if (checkShape(source, diagnostics)) {
        result.module = std::make_unique<Module>(source);
        try {
            Parser{source, symbols, diagnostics, constants, *result.module}.parse();
        } catch (const TooManyErrors&) {
            // The last diagnostic reports that the rest was not read.
        }
    }
    result.errors = diagnostics.errors();
    result.diagnostics = diagnostics.takeSorted();
    return result;
}

} // namespace qltoolkit
