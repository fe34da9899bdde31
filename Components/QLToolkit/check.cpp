#include "Components/QLToolkit/check.h"
#include <filesystem>

namespace qltoolkit {

namespace {

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
