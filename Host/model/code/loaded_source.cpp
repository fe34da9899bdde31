#include "Host/model/code/loaded_source.h"
#include "Basic/detection/code_page_detection.h"
#include "Host/model/code/component_kind.h"
#include "Host/model/errors/host_errors.h"
#include <algorithm>

namespace host {
namespace {

/// True if the start has control characters that do not occur in source text.
bool hasBinaryStart(std::string_view bytes) noexcept {
    constexpr std::size_t kExamined = 512;
    const auto start = bytes.substr(0, kExamined);
    return std::any_of(start.begin(), start.end(), [](char c) {
        return static_cast<unsigned char>(c) < 0x20 && c != '\r' && c != '\n' && c != '\t' && c != '\f' && c != '\x1A';
    });
}

/// Files with a designer must begin with it. Modules and classes may consist of code alone, but must be text.
void refuseOtherFiles(MemberKind kind, const std::string& path, std::string_view bytes) {
    const auto parts = splitSource(bytes);
    const bool bare = parts.designer.empty();
    const bool mayBeBare = kind == MemberKind::Module || kind == MemberKind::Class;
    const bool other = mayBeBare ? bare && parts.attributes.empty() && hasBinaryStart(bytes) : bare;
    if (other) throw hostError(kInvalidFileFormat, fmt::format("{}: is not a Visual Basic source file", path));
}

} // namespace

LoadedSource sourceOf(MemberKind kind, std::string bytes, const std::string& path, const basic::CodePage& usual) {
    refuseOtherFiles(kind, path, bytes);
    const auto page = basic::codePageOfFile(bytes, usual);
    SourceFile source(std::move(bytes), page);
    const auto type = typeOf(kind, source.designerClass());
    auto name = source.name();
    return {std::move(source), type, std::move(name), {}};
}

LoadedSource readSource(MemberKind kind, const std::string& path, const basic::CodePage& usual) {
    auto content = readFile(path);
    auto loaded = sourceOf(kind, std::move(content.bytes), path, usual);
    loaded.stamp = content.stamp;
    return loaded;
}

} // namespace host
