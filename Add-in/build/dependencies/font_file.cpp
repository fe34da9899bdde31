#include "Add-in/build/dependencies/font_file.h"
#include "Basic/code_page.h"
#include "Basic/runtime_error.h"
#include "Basic/text.h"
#include <algorithm>
#include <fmt/format.h>

namespace fernwick {

namespace {

constexpr std::string_view kWrapperMark = "FIL";
constexpr std::size_t kBehindMark = 13;
constexpr std::size_t kBehindWrapperLength = 19;
constexpr int kWrappedVersion = 2;
constexpr int kTwoPartVersion = 3;

// Offsets in the header
constexpr std::size_t kVersionAt = 0, kSizeAt = 1, kMoreSizeAt = 2, kStyleAt = 4, kNameAt = 24;
constexpr std::size_t kLongestName = 32;

int byteAt(std::string_view bytes, std::size_t at) {
    return at < bytes.size() ? static_cast<unsigned char>(bytes[at]) : 0;
}

/// Returns the bytes from an offset; none beyond the end.
std::string_view from(std::string_view bytes, std::size_t at) { return bytes.substr(std::min(at, bytes.size())); }

std::string faceNameIn(std::string_view head) {
    const auto field = from(head, kNameAt).substr(0, kLongestName);
    return basic::CodePage::windows1252().decode(field.substr(0, field.find('\0')));
}

FontFace readHeader(std::string_view head, int version) {
    const int more = version == kTwoPartVersion ? byteAt(head, kMoreSizeAt) : 0;
    return {faceNameIn(head), byteAt(head, kStyleAt), byteAt(head, kSizeAt) + more};
}

} // namespace

FontFace readFontHead(std::string_view head) {
    if (!head.starts_with(kWrapperMark)) return readHeader(head, byteAt(head, kVersionAt));
    const auto wrapper = from(head, kWrapperMark.size() + kBehindMark);
    const auto length = std::size_t(byteAt(wrapper, 0));
    return readHeader(from(wrapper, 1 + length + kBehindWrapperLength), kWrappedVersion);
}

std::optional<FontFace> CheckFontFile(const FileSystemObject& files, const std::string& path) {
    std::optional<FontFace> font;
    (void)basic::attempt([&] { font = readFontHead(files.ReadPart(path, 0, kFontHeadBytes)); });
    return font;
}

std::string GetFontFileName(const FontFace& font) {
    const char* const style = font.style == 3 ? "BI" : font.style == 1 ? "B" : font.style == 2 ? "I" : "R";
    return fmt::format("{}{}{}{}.CMF", basic::Left(font.name, 3), font.size >= 10 ? "_" : "_0", font.size, style);
}

std::array<std::string, 3> convertedFaceNames(const std::string& name) { return {name, name + "CMF", name + " CMF"}; }

bool FontFileMatches(const FileSystemObject& files, const std::string& path, const FontFace& font) {
    const auto held = CheckFontFile(files, path);
    if (!held || held->size != font.size || held->style != font.style) return false;
    const auto names = convertedFaceNames(font.name);
    return std::find(names.begin(), names.end(), held->name) != names.end();
}

} // namespace fernwick
