#include "Components/QLToolkit/check.h"
#include "Components/QLToolkit/parser/parser.h"
#include <cerrno>
#include <charconv>
#include <cstring>
#include <filesystem>
#include <fstream>

namespace compiler {

namespace {

bool hasDesigner(FileKind kind) { return kind >= FileKind::Form; }

// False when the text is not worth parsing.
bool checkShape(const SourceFile& source, Diagnostics& diagnostics) {
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
    const bool noHead = source.header() == HeaderState::Missing && source.attributesBegin() == source.codeBegin();
    if (noHead && source.kind() == FileKind::Class) diagnostics.reportFile(Message::HeaderMissing);
    return true;
}

std::string_view trimmed(std::string_view s) {
    const auto begin = s.find_first_not_of(" \t");
    if (begin == std::string_view::npos) return {};
    return s.substr(begin, s.find_last_not_of(" \t") - begin + 1);
}

// False when reading failed; stops beyond the largest size that is accepted.
bool readAll(const std::string& path, std::string& bytes) {
    std::ifstream file(path, std::ios::binary);
    if (!file) return false;
    constexpr std::size_t kPiece = 1 << 20;
    std::error_code unknown;
    const auto expected = std::filesystem::file_size(path, unknown);
    if (!unknown && expected <= kMaxSourceBytes) bytes.reserve(expected + SourceFile::kPadding);
    for (std::size_t size = 0; file && size <= kMaxSourceBytes;) {
        bytes.resize(std::max(size + SourceFile::kPadding, std::min(bytes.capacity(), size + kPiece)));
        file.read(bytes.data() + size, static_cast<std::streamsize>(bytes.size() - size));
        size += static_cast<std::size_t>(file.gcount());
        bytes.resize(size);
    }
    return !file.bad() && (file.eof() || bytes.size() > kMaxSourceBytes);
}

CheckResult failedCheck(Message message, const std::string& path, std::string_view detail = {}) {
    return {{fileDiagnostic(message, path, detail)}, 1, 0};
}

} // namespace

ConditionalConstants parseConditionalConstants(std::string_view text) {
    ConditionalConstants constants;
    while (!text.empty()) {
        const auto colon = std::min(text.find(':'), text.size());
        const auto entry = text.substr(0, colon);
        text.remove_prefix(std::min(colon + 1, text.size()));
        const auto equals = entry.find('=');
        if (equals == std::string_view::npos) continue;
        const auto name = trimmed(entry.substr(0, equals)), number = trimmed(entry.substr(equals + 1));
        long value = 0;
        const auto end = number.data() + number.size();
        const auto result = std::from_chars(number.data(), end, value);
        if (!name.empty() && result.ec == std::errc{} && result.ptr == end) constants.emplace_back(name, value);
    }
    return constants;
}

ParseResult parseModule(const SourceFile& source, SymbolTable& symbols, const ConditionalConstants& constants) {
    ParseResult result;
    Diagnostics diagnostics{source};
    if (checkShape(source, diagnostics)) {
        result.module = std::make_unique<Module>(source);
        try {
            Parser{source, symbols, diagnostics, constants, *result.module}.parse();
        } catch (const TooManyErrors&) {
            // The rest stays unread; the last diagnostic says so.
        }
    }
    result.errors = diagnostics.errors();
    result.diagnostics = diagnostics.takeSorted();
    return result;
}

CheckResult checkSource(std::string name, std::string bytes, const ConditionalConstants& constants,
                        const basic::CodePage& page) {
    if (bytes.size() > kMaxSourceBytes) return failedCheck(Message::FileTooLarge, name);
    const SourceFile source{std::move(name), std::move(bytes), page};
    SymbolTable symbols;
    auto parsed = parseModule(source, symbols, constants);
    return {std::move(parsed.diagnostics), parsed.errors, source.lineCount()};
}

CheckResult checkFile(const std::string& path, const ConditionalConstants& constants, const basic::CodePage& page) {
    std::error_code error;
    const auto status = std::filesystem::status(path, error);
    if (!std::filesystem::exists(status)) return failedCheck(Message::FileMissing, path, path);
    if (std::filesystem::is_directory(status)) return failedCheck(Message::FileIsFolder, path, path);
    if (fileKindOf(path) == FileKind::Unknown) return failedCheck(Message::FileKindUnknown, path);
    std::string bytes;
    if (!readAll(path, bytes)) return failedCheck(Message::FileUnreadable, path, std::strerror(errno));
    return checkSource(path, std::move(bytes), constants, page);
}

} // namespace compiler
