#include "Components/QLToolkit/check.h"
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>

namespace qltoolkit {

namespace {

// Reads the file, but not much more than kMaxSourceBytes. Returns false if reading failed.
bool readAll(const std::string& path, std::string& bytes) {
    std::ifstream file(path, std::ios::binary);
    if (!file) return false;
    constexpr std::size_t kPiece = 1 << 20;
    std::error_code unknown;
    const auto expected = std::filesystem::file_size(path, unknown);
    if (!unknown && expected <= kMaxSourceBytes) bytes.reserve(expected + SourceText::kPadding);
    for (std::size_t size = 0; file && size <= kMaxSourceBytes;) {
        bytes.resize(std::max(size + SourceText::kPadding, std::min(bytes.capacity(), size + kPiece)));
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

CheckResult checkSource(std::string name, std::string bytes, const ConditionalConstants& constants,
                        const basic::CodePage& page) {
    if (bytes.size() > kMaxSourceBytes) return failedCheck(Message::FileTooLarge, name);
    const SourceText source{std::move(name), std::move(bytes), page};
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

} // namespace qltoolkit
